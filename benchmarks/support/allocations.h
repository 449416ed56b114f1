#pragma once

#include <cstddef>

namespace Drevon::Zalento::Benchmarks {

/** Calls of operator new in this process so far; Qt's own containers allocate without it. */
std::size_t allocationCount();

} // namespace Drevon::Zalento::Benchmarks

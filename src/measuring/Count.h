#pragma once

namespace Drevon::Zalento::Measuring {

/** How many elements a container has. Qt 6 counts them in 64 bits, Qt 5 in 32: nothing here is near
    to either. */
template <typename Container>
int countOf(const Container &container)
{
    return static_cast<int>(container.size());
}

} // namespace Drevon::Zalento::Measuring

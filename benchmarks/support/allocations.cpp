#include "support/allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t count = 0;

} // namespace

void *operator new(std::size_t size)
{
    ++count;
    void *memory = std::malloc(size > 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

std::size_t Drevon::Zalento::Benchmarks::allocationCount()
{
    return count;
}

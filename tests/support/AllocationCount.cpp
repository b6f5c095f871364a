#include "support/AllocationCount.h"

#include <malloc.h>

#include <utility>

// Present when the address sanitizer is, whose allocator the C library knows nothing of.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

std::size_t allocatedBytes()
{
    if (__sanitizer_get_current_allocated_bytes)
        return __sanitizer_get_current_allocated_bytes();
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd; // large blocks are mapped one by one
}

#if !defined(__SANITIZE_ADDRESS__)

namespace {
thread_local std::size_t allocations = 0;
}

// The program's own functions take the place of those of the C library, which does the work under other names.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier)
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier)

void *malloc(std::size_t size)
{
    ++allocations;
    return __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    ++allocations;
    return __libc_calloc(count, size);
}

void *realloc(void *memory, std::size_t size)
{
    ++allocations;
    return __libc_realloc(memory, size);
}
}

std::size_t takeAllocationCount()
{
    return std::exchange(allocations, 0);
}

bool countsAllocations()
{
    return true;
}

#else

std::size_t takeAllocationCount()
{
    return 0;
}

bool countsAllocations()
{
    return false;
}

#endif

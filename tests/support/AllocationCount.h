#pragma once

#include <cstddef>

/// Number of allocations that this thread has made on the heap since the last call.
std::size_t takeAllocationCount();

/// False under the sanitizers, which bring an allocator of their own.
bool countsAllocations();

/// Bytes on the heap that are in use.
std::size_t allocatedBytes();

// The interpreter's C-style heap blocks (Values, variables, the macro text,
// formula copies). Every allocation goes through heapMayAllocate, so that a
// test can make one chosen allocation fail and check that the failure is
// handled everywhere; the native tests' operator new asks it as well.
#pragma once
#include <cstddef>
#include <cstdint>

namespace mx {

// malloc and calloc, absent when memory is missing or a failure is injected.
void *heapMalloc(size_t bytes);
void *heapCalloc(size_t count, size_t size);

// Counts one allocation; false when it is the one chosen to fail.
bool heapMayAllocate();

// For tests: the allocation after the next `allowed` ones fails, the ones
// after it succeed again; a negative count injects nothing (the default).
void heapFailAfter(int64_t allowed);

// Number of failures injected since the last heapFailAfter.
int64_t heapInjectedFailures();

}  // namespace mx

#include "base/heap.h"

#include <atomic>
#include <cstdlib>

namespace mx {

namespace {
std::atomic<int64_t> gAllowed{-1};
std::atomic<int64_t> gInjected{0};
}  // namespace

bool heapMayAllocate() {
    if (gAllowed.load(std::memory_order_relaxed) < 0) return true;
    if (gAllowed.fetch_sub(1) != 0) return true;
    gInjected.fetch_add(1);
    return false;
}

void heapFailAfter(int64_t allowed) {
    gInjected = 0;
    gAllowed = allowed;
}

int64_t heapInjectedFailures() { return gInjected.load(); }

void *heapMalloc(size_t bytes) { return heapMayAllocate() ? std::malloc(bytes) : nullptr; }

void *heapCalloc(size_t count, size_t size) { return heapMayAllocate() ? std::calloc(count, size) : nullptr; }

}  // namespace mx

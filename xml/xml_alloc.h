// Heap memory of the XML engine. Every record and every stored text of a
// document comes from here, so that the engine's handling of exhausted memory
// can be exercised: a test can make allocations fail from a chosen one on.
#pragma once
#include <cstddef>
#include <cstdint>

namespace mx::xml {

// Zero-filled memory of the given size, or absent when memory is missing
// (or when the failure switch below says so).
void *xmlAlloc(size_t bytes);

// Releases memory of xmlAlloc; absent is harmless.
void xmlFree(void *p);

// For tests: the next `allowed` allocations succeed and every one after them
// fails; a negative count lets every allocation succeed again.
void xmlFailAllocationsAfter(int64_t allowed);

// An owned copy of text with exactly its length plus a terminating zero in
// *out. Absent text gives absent. Returns 0, or -2 with *out absent.
int32_t xmlCopyText(const char16_t *text, char16_t **out);

// An owned copy of n units of text, terminated. Returns 0 or -2 (*out absent).
int32_t xmlCopyUnits(const char16_t *text, size_t n, char16_t **out);

}  // namespace mx::xml

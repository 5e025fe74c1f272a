#include "xml/xml_alloc.h"

#include <cstdlib>
#include <cstring>

#include "xml/xml_codes.h"
#include "base/heap.h"

namespace mx::xml {

namespace {
int64_t allocationsLeft = -1;  // negative: no failures
}

void *xmlAlloc(size_t bytes) {
    if (allocationsLeft == 0) return nullptr;
    if (allocationsLeft > 0) --allocationsLeft;
    return heapCalloc(1, bytes ? bytes : 1);
}

void xmlFree(void *p) { std::free(p); }

void xmlFailAllocationsAfter(int64_t allowed) { allocationsLeft = allowed < 0 ? -1 : allowed; }

int32_t xmlCopyUnits(const char16_t *text, size_t n, char16_t **out) {
    *out = nullptr;
    if (n >= SIZE_MAX / sizeof(char16_t)) return XMLERR_NOMEM;
    auto *copy = static_cast<char16_t *>(xmlAlloc((n + 1) * sizeof(char16_t)));
    if (!copy) return XMLERR_NOMEM;
    if (n) std::memcpy(copy, text, n * sizeof(char16_t));
    copy[n] = 0;
    *out = copy;
    return XMLERR_OK;
}

int32_t xmlCopyText(const char16_t *text, char16_t **out) {
    *out = nullptr;
    if (!text) return XMLERR_OK;
    size_t n = 0;
    while (text[n]) ++n;
    return xmlCopyUnits(text, n, out);
}

}  // namespace mx::xml

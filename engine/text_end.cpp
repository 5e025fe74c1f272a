#include "engine/text_end.h"

#include "engine/value.h"

namespace mx {

namespace {

struct TextEnd {
    const char16_t *s = nullptr;
    int32_t capacity = 0;
    int32_t length = 0;
    uint64_t stamp = 0;
};

// One for the process, like the spare Values: runs do not overlap.
TextEnd gEnd;

bool overlaps(const void *data, size_t bytes) {
    auto begin = reinterpret_cast<uintptr_t>(data);
    auto mine = reinterpret_cast<uintptr_t>(gEnd.s);
    return gEnd.s && begin < mine + sizeof(char16_t) * size_t(gEnd.capacity) && mine < begin + bytes;
}

}  // namespace

bool textEndKnown(const char16_t *s, int32_t capacity, int32_t *length) {
    if (!s || s != gEnd.s || capacity != gEnd.capacity || s[gEnd.length] != 0) return false;
    *length = gEnd.length;
    return true;
}

void textEndRemember(const char16_t *s, int32_t capacity, int32_t length) {
    gEnd.s = length >= 0 && length < capacity ? s : nullptr;
    gEnd.capacity = capacity;
    gEnd.length = length;
    ++gEnd.stamp;
}

void textEndForget(const void *data, size_t bytes) {
    if (overlaps(data, bytes)) gEnd.s = nullptr;
}

uint64_t textEndStamp() { return gEnd.stamp; }

void textEndAfterCall(Value *const *args, int32_t count, uint64_t stamp) {
    for (int32_t i = 0; i < count && gEnd.s; ++i) {
        const Value *v = args[i];
        if (!v || !v->data || (gEnd.stamp != stamp && v->data == gEnd.s)) continue;
        size_t elements = v->count > 0 ? size_t(v->count) : 1;
        textEndForget(v->data, elements * size_t(valElementSize(v->type) > 0 ? valElementSize(v->type) : 1));
    }
}

}  // namespace mx

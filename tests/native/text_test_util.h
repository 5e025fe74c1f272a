// Helpers of the text, number and date tests: destinations of an exact
// capacity on the heap, so that AddressSanitizer reports any access past
// them, and readable UTF-8 forms of UTF-16 texts for failure messages.
#pragma once
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "base/utf8.h"

namespace mxtest {

inline std::string u8(const std::u16string &s) { return mx::toUtf8(s.c_str()); }

// Runs f(buf, cap) on a buffer of exactly cap units holding init (cut to
// cap - 1 units and terminated); *result gets f's answer. Fails the test
// when the buffer is not terminated afterwards. Returns the text.
template <class F>
std::u16string inBuffer(int32_t cap, const std::u16string &init, F f, int32_t *result = nullptr) {
    std::unique_ptr<char16_t[]> buf(new char16_t[size_t(cap)]);
    for (int32_t i = 0; i < cap; ++i) buf[size_t(i)] = 0x7E7E;  // not a terminator
    int32_t n = 0;
    for (; n < cap - 1 && n < int32_t(init.size()); ++n) buf[size_t(n)] = init[size_t(n)];
    if (cap > 0) buf[size_t(n)] = 0;
    int32_t r = f(buf.get(), cap);
    if (result) *result = r;
    int32_t len = 0;
    while (len < cap && buf[size_t(len)]) ++len;
    EXPECT_LT(len, cap) << "not terminated within capacity " << cap;
    return std::u16string(buf.get(), size_t(len));
}

}  // namespace mxtest

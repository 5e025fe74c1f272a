// MakeText patterns: a pattern with up to four parameters formatted into a
// destination of a chosen capacity (1 to 256 units, allocated to the exact
// size so that a write past it is caught), and MakeTextInt.
#include "builtins/text/format.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzInput in{data, size};
    int32_t cap = 1 + in.byte();
    bool wide = in.byte() & 1;
    int32_t value = int32_t(uint32_t(in.byte()) << 24 | uint32_t(in.byte()) << 16 | in.byte() << 8 | in.byte());
    std::u16string pattern = in.text(wide);
    std::u16string params[4];
    mx::TextIn texts[4];
    for (int i = 0; i < 4; ++i) {
        params[i] = in.text(wide);
        texts[i] = mx::TextIn(params[i]);
    }
    // The pattern as the caller's vector: unterminated when it fills it.
    std::u16string storage = pattern.empty() ? std::u16string(1, u'\0') : pattern;
    mx::TextIn p(storage.data(), int32_t(storage.size()));
    char16_t *dst = new char16_t[size_t(cap)];
    mx::txtMakeText(dst, cap, p, texts, 4);
    mx::txtMakeText(dst, cap, p, texts, 1);
    mx::txtMakeTextInt(dst, cap, p, value);
    delete[] dst;
    return 0;
}

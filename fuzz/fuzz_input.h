// Splitting a fuzz input into the pieces a target needs: option bytes and
// texts. Texts are separated by a zero byte; a text's bytes are its units
// (0-255) unless the target asks for wide texts, where each byte pair is one
// UTF-16 unit (so every unit up to 0xFFFF, surrogates included, occurs).
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

struct FuzzInput {
    const uint8_t *p;
    size_t n;

    // The next byte, 0 when the input is used up.
    uint8_t byte() {
        if (!n) return 0;
        --n;
        return *p++;
    }
    // The next text up to a zero byte (or the end).
    std::u16string text(bool wide = false) {
        std::u16string t;
        while (n) {
            uint8_t b = byte();
            if (b == 0) break;
            if (wide && n) t += char16_t(b | (byte() << 8));
            else t += char16_t(b);
        }
        return t;
    }
    // Everything left as units.
    std::u16string rest(bool wide = false) {
        std::u16string t;
        while (n) {
            uint8_t b = byte();
            t += wide && n ? char16_t(b | (byte() << 8)) : char16_t(b);
        }
        return t;
    }
};

// The MD5 message digest of RFC 1321, over the UTF-8 bytes of a text.
#include <cmath>
#include <cstring>

#include "base/u16.h"
#include "helperlib/kelvane_strings.h"

namespace mx {

namespace {

constexpr int32_t kDigestText = 33;  // 32 hexadecimal digits and the zero

// Per-step constants: the integer part of 2^32 * |sin(i + 1)|.
struct SineTable {
    uint32_t t[64];
    SineTable() {
        for (int i = 0; i < 64; ++i) t[i] = uint32_t(std::floor(std::fabs(std::sin(double(i + 1))) * 4294967296.0));
    }
};

constexpr int kShift[4][4] = {{7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}};

uint32_t rotl(uint32_t x, int n) { return (x << n) | (x >> (32 - n)); }

struct Md5 {
    uint32_t state[4] = {0x67452301u, 0xefcdab89u, 0x98badcfeu, 0x10325476u};
    unsigned char block[64];
    int32_t used = 0;
    uint64_t bytes = 0;

    void compress() {
        static const SineTable sine;
        uint32_t x[16];
        for (int i = 0; i < 16; ++i)
            x[i] = uint32_t(block[4 * i]) | uint32_t(block[4 * i + 1]) << 8 | uint32_t(block[4 * i + 2]) << 16 |
                   uint32_t(block[4 * i + 3]) << 24;
        uint32_t a = state[0], b = state[1], c = state[2], d = state[3];
        for (int i = 0; i < 64; ++i) {
            int round = i / 16;
            uint32_t f;
            int g;
            if (round == 0) f = (b & c) | (~b & d), g = i;
            else if (round == 1) f = (b & d) | (c & ~d), g = (5 * i + 1) % 16;
            else if (round == 2) f = b ^ c ^ d, g = (3 * i + 5) % 16;
            else f = c ^ (b | ~d), g = (7 * i) % 16;
            uint32_t next = b + rotl(a + f + sine.t[i] + x[g], kShift[round][i % 4]);
            a = d, d = c, c = b, b = next;
        }
        state[0] += a, state[1] += b, state[2] += c, state[3] += d;
    }

    void add(const unsigned char *p, int32_t n) {
        for (int32_t i = 0; i < n; ++i) {
            block[used++] = p[i];
            if (used == 64) compress(), used = 0;
        }
        bytes += uint64_t(n);
    }

    // Padding: a 1 bit, zeros up to 56 bytes in the block, the bit length.
    void finish(unsigned char out[16]) {
        uint64_t bits = bytes * 8;
        unsigned char one = 0x80, zero = 0;
        add(&one, 1);
        while (used != 56) add(&zero, 1);
        unsigned char length[8];
        for (int i = 0; i < 8; ++i) length[i] = static_cast<unsigned char>(bits >> (8 * i));
        add(length, 8);
        for (int i = 0; i < 16; ++i) out[i] = static_cast<unsigned char>(state[i / 4] >> (8 * (i % 4)));
    }
};

void md5Feed(void *context, const unsigned char *bytes, int32_t count) {
    static_cast<Md5 *>(context)->add(bytes, count);
}

}  // namespace

int32_t Kelvane_MD5(const char16_t *text, char *digest, int32_t size) {
    if (!digest || size < 1) return -1;
    if (size < kDigestText) {
        digest[0] = 0;
        return -1;
    }
    Md5 md5;
    kstrUtf8Bytes(text, u16Len(text), md5Feed, &md5);
    unsigned char out[16];
    md5.finish(out);
    const char *hex = "0123456789abcdef";
    for (int i = 0; i < 16; ++i) {
        digest[2 * i] = hex[out[i] >> 4];
        digest[2 * i + 1] = hex[out[i] & 15];
    }
    digest[32] = 0;
    return 0;
}

}  // namespace mx

// What the C runtime's stream modes do to the bytes of a file, as cases
// shared by the native tests (the Linux streams) and the Windows tests (the
// runtime itself under Wine): the same files, byte for byte.
#pragma once
#include <string>
#include <vector>

namespace filecases {

using namespace std::string_literals;

// Writing text with a mode to a file that holds `before` (absent: a new file).
struct WriteCase {
    const char16_t *mode;
    const char *before;  // absent: no file
    size_t beforeSize;
    std::u16string text;
    int result;  // 0, or -1 when a unit could not be written
    std::string bytes;
};

inline const std::vector<WriteCase> &writeCases() {
    static const std::vector<WriteCase> cases = {
        {u"w", nullptr, 0, u"a\nb\u00e4", 0, "a\r\nb\xe4"s},
        {u"w", nullptr, 0, u"ab\u0100z", -1, "ab"s},
        {u"w", nullptr, 0, u"a\r\nb", 0, "a\r\r\nb"s},
        {u"wb", nullptr, 0, u"a\nb", 0, "a\0\n\0b\0"s},
        {u"wb", nullptr, 0, u"\xd800", 0, "\0\xd8"s},
        {u"w, ccs=UTF-8", nullptr, 0, u"a\n\u00e4\u20ac", 0, "\xef\xbb\xbf" "a\r\n\xc3\xa4\xe2\x82\xac"s},
        {u"w, ccs=UTF-8", nullptr, 0, u"a\r\nb", 0, "\xef\xbb\xbf" "a\r\r\nb"s},
        {u"w, ccs=UTF-8", nullptr, 0, u"\U0001F600.\xd800.", 0, "\xef\xbb\xbf\xf0\x9f\x98\x80.\xef\xbf\xbd."s},
        {u"w, ccs=UTF-8", nullptr, 0, u"\xdc00" u"a\xd800", 0, "\xef\xbb\xbf\xef\xbf\xbd" "a\xef\xbf\xbd"s},
        {u"w, ccs=UTF-16LE", nullptr, 0, u"a\nb", 0, "\xff\xfe" "a\0\r\0\n\0b\0"s},
        {u"w, ccs=UTF-16LE", nullptr, 0, u"\xd800x", 0, "\xff\xfe\0\xd8x\0"s},
        {u"w, ccs=UNICODE", nullptr, 0, u"a\nb", 0, "\xff\xfe" "a\0\r\0\n\0b\0"s},
        {u"w,ccs=utf-8", nullptr, 0, u"x", 0, "\xef\xbb\xbfx"s},
        {u"wt, ccs=UTF-8", nullptr, 0, u"x", 0, "\xef\xbb\xbfx"s},
        {u"wb, ccs=UTF-8", nullptr, 0, u"x", 0, "\xef\xbb\xbfx\0"s},
        {u"a, ccs=UTF-8", nullptr, 0, u"x", 0, "\xef\xbb\xbfx"s},
        {u"W", nullptr, 0, u"x", 0, "x"s},
        {u" w", nullptr, 0, u"x", 0, "x"s},
        {u"wz", nullptr, 0, u"x", 0, "x"s},
        {u"w+", nullptr, 0, u"x", 0, "x"s},
        {u"a, ccs=UTF-8", "ab", 2, u"x", 0, "abx"s},
        {u"a, ccs=UTF-8", "", 0, u"x", 0, "\xef\xbb\xbfx"s},
        {u"a, ccs=UTF-16LE", "\xef\xbb\xbf" "ab", 5, u"x", 0, "\xef\xbb\xbf" "abx"s},
        {u"a, ccs=UTF-16LE", "ab", 2, u"x", 0, "abx\0"s},
        {u"r+, ccs=UTF-8", "ab", 2, u"x", 0, "xb"s},
        {u"a+, ccs=UTF-8", "\xff\xfe" "a\0", 4, u"x\n", 0, "\xff\xfe" "a\0x\0\r\0\n\0"s},
        {u"a, ccs=UTF-8", "\xff\xfe" "a\0", 4, u"x\n", 0, "\xff\xfe" "a\0x\0\r\0\n\0"s},
        {u"a, ccs=UTF-8", "\xff\xfe", 2, u"x", 0, "\xff\xfex\0"s},
        {u"a, ccs=UTF-8", "\xef\xbb\xbf", 3, u"x", 0, "\xef\xbb\xbfx"s},
        {u"a", "ab\x1a", 3, u"x", 0, "ab\x1ax"s},
        {u"a+", "ab\x1a", 3, u"x", 0, "ab\x1ax"s},
        {u"r+", "ab\x1a", 3, u"x", 0, "xb\x1a"s},
        {u"w, ccs=UTF-16LE", "\xef\xbb\xbf" "ab", 5, u"x", 0, "\xff\xfex\0"s},
        {u"r+, ccs=UTF-16LE", "", 0, u"x", 0, "\xff\xfex\0"s},
        {u"ab", "ab", 2, u"x", 0, "abx\0"s},
        {u"a, ccs=UNICODE", "ab", 2, u"x", 0, "abx"s},
        {u"r+, ccs=UNICODE", "ab", 2, u"x", 0, "xb"s},
        {u"a, ccs=UNICODE", "", 0, u"x", 0, "\xff\xfex\0"s},
        {u"w, ccs=UNICODE", "ab", 2, u"\u00e4", 0, "\xff\xfe\xe4\0"s},
        {u"a, ccs=UNICODE", "ab", 2, u"\u0101", -1, "ab"s},
        {u"a, ccs=UNICODE", "ab", 2, u"\u00e4\n", 0, "ab\xe4\r\n"s},
        {u"r", "ab", 2, u"x", -1, "ab"s},
    };
    return cases;
}

// Reading a file of the given bytes line by line with a mode and a buffer
// capacity: the lines (each as the wide line reading stores it) until the end.
struct ReadCase {
    const char16_t *mode;
    std::string bytes;
    int capacity;
    std::vector<std::u16string> lines;
};

inline const std::vector<ReadCase> &readCases() {
    static const std::vector<ReadCase> cases = {
        {u"r", "a\r\nb\rc\r\n\x1a" "d"s, 64, {u"a\n", u"b\rc\n"}},
        {u"r", "abcdef\r\nxy"s, 3, {u"ab", u"cd", u"ef", u"\n", u"xy"}},
        {u"r", "abc"s, 2, {u"a", u"b", u"c"}},
        {u"r", "abc"s, 1, {}},
        {u"r", "a\r"s, 64, {u"a\r"}},
        {u"r", "\x80\xe4\xff"s, 64, {u"\x80\xe4\xff"}},
        {u"r", "\xef\xbb\xbf" "a"s, 64, {u"\xef\xbb\xbf" u"a"}},
        {u"r+", "ab\x1a"s, 64, {u"ab"}},
        {u"rt+", "a"s, 64, {u"a"}},
        {u"w", "a"s, 64, {}},
        {u"rb", "a\0\n\0b\0c"s, 64, {u"a\n", u"b"}},
        {u"rb", "abc"s, 64, {u"\x6261"}},
        {u"rb", "\xff\xfe" "a\0"s, 64, {u"\xfeff" u"a"}},
        {u"r, ccs=UTF-8", "\xef\xbb\xbf" "a\r\n\xc3\xa4\xe2\x82\xac"s, 64, {u"a\n", u"\u00e4\u20ac"}},
        {u"r, ccs=UTF-8", "a\r\n\xc3\xa4"s, 64, {u"a\n", u"\u00e4"}},
        {u"r, ccs=UTF-8", "\xff\xfe" "a\0\r\0\n\0"s, 64, {u"a\n"}},
        {u"r, ccs=UTF-8", "a\x1a" "b"s, 64, {u"a"}},
        {u"r, ccs=UTF-8", "a\xff" "b\xc3"s, 64, {u"a\xfffd" u"b"}},
        {u"r, ccs=UTF-8", "\xf0\x9f\x98\x80"s, 64, {u"\U0001F600"}},
        {u"r, ccs=UTF-8", ""s, 64, {}},
        {u"r, ccs=UTF-8", "\xef\xbb"s, 64, {u"\xfffd"}},
        {u"r, ccs=UTF-8", "\xc0\x80|\xf8\x88\x80\x80\x80|\xe2\x82" "a|\x80"s, 64,
         {u"\xfffd\xfffd|\xfffd\xfffd\xfffd\xfffd\xfffd|\xfffd" u"a|\xfffd"}},
        {u"r, ccs=UTF-8", "a\xe2\x82"s, 64, {u"a\xfffd"}},
        {u"r, ccs=UTF-8", "a\xe2"s, 64, {u"a"}},
        {u"r, ccs=UTF-8", "a\xf0\x9f\x98"s, 64, {u"a\xfffd"}},
        {u"r, ccs=UTF-8", "a\xf0"s, 64, {u"a"}},
        {u"r, ccs=UTF-8", "\xc3"s, 64, {}},
        {u"r, ccs=UTF-8", "a\xc3" "b"s, 64, {u"a\xfffd" u"b"}},
        {u"r, ccs=UTF-8", "a\xbf\xbf"s, 64, {u"a\xfffd\xfffd"}},
        {u"r, ccs=UTF-8", "\xe2\x82\xac\xe2\x82\xac"s, 2, {u"\u20ac", u"\u20ac"}},
        {u"r, ccs=UTF-8", "\xf0\x9f\x98\x80z"s, 2, {u"\xd83d", u"\xde00", u"z"}},
        {u"r, ccs=UTF-8", "a\r\n"s, 2, {u"a", u"\n"}},
        {u"r, ccs=UTF-8", "\xef\xbb\xbf"s, 64, {}},
        {u"r, ccs=UTF-8", "\xef\xbb\xbf\xef\xbb\xbf" "a"s, 64, {u"\xfeff" u"a"}},
        {u"r,ccs = UTF-8", "a"s, 64, {u"a"}},
        {u"r, ccs=UTF-16LE", "a\0\r\0\n\0b\0"s, 64, {u"a\n", u"b"}},
        {u"r, ccs=UTF-16LE", "\xef\xbb\xbf" "ab"s, 64, {u"ab"}},
        {u"r, ccs=UTF-16LE", "a\0\x1a\0b\0"s, 64, {u"a"}},
        {u"r, ccs=UTF-16LE", "ab"s, 64, {u"\x6261"}},
        {u"r, ccs=UTF-16LE", "a\0b"s, 64, {u"a"}},
        {u"r, ccs=UTF-16LE", "a\0\r\0"s, 64, {u"a\r"}},
        {u"r, ccs=UTF-16LE", "a\0\r\0b\0"s, 64, {u"a\rb"}},
        {u"r, ccs=UNICODE", "ab"s, 64, {u"ab"}},
        {u"r, ccs=UNICODE", "\xff\xfe" "a\0"s, 64, {u"a"}},
        {u"r, ccs=UNICODE", "\xc3\xa4\x80"s, 64, {u"\xc3\xa4\x80"}},
        {u"r, ccs=UNICODE", "a\r\nb"s, 64, {u"a\n", u"b"}},
    };
    return cases;
}

// Mode texts the runtime refuses.
inline const std::vector<const char16_t *> &invalidModes() {
    static const std::vector<const char16_t *> modes = {
        u"", u"q", u"r, ccs=UTF-7", u"r, ccs=UTF-8 x", u"r, cs=UTF-8", u"rb, ccs", u"r,",
    };
    return modes;
}

}  // namespace filecases

// Profile reading and writing as the Windows profile functions do it, as
// cases shared by the native tests (the Linux profile store) and the Windows
// tests (the platform's functions under Wine).
#pragma once
#include <string>
#include <vector>

namespace filecases {

using namespace std::string_literals;

inline const std::string kProfileText =
    "; head\r\nx=1\r\n[Sec A]\r\n  Key1 = \" v 1 \" \r\nk2='q'\r\nnoeq\r\n;c=3\r\nk3=\"a\r\nk4=\r\n"
    "[b]\r\nz=9\r\n[sec a]\r\nk5=dup\r\n";

// A read of kProfileText: absent section or key are null; the first units of
// the buffer as the function leaves them (lists with all their zeros).
struct ProfileReadCase {
    const char16_t *section, *key, *def;
    int capacity;
    int result;
    std::u16string units;  // at most `capacity` units
};

inline const std::vector<ProfileReadCase> &profileReadCases() {
    static const std::vector<ProfileReadCase> cases = {
        {u"sec a", u"KEY1", u"", 8, 5, u" v 1 \0"s},
        {u"Sec A", u"k2", u"", 4, 1, u"q\0"s},
        {u"Sec A", u"noeq", u"dflt", 6, 4, u"dflt\0#"s},
        {u"Sec A", u";c", u"dflt", 4, 1, u"3\0##"s},
        {u"Sec A", u"k3", u"", 4, 2, u"\"a\0#"s},
        {u"Sec A", u"k4", u"dflt", 4, 0, u"\0###"s},
        {u"Sec A", u"k5", u"dflt", 6, 4, u"dflt\0#"s},
        {u"Sec A", u"missing", u"dflt  ", 6, 4, u"dflt\0#"s},
        {u"Sec A", u"missing", nullptr, 2, 0, u"\0#"s},
        {nullptr, nullptr, u"", 16, 14, u"Sec A\0b\0sec a\0\0#"s},
        {nullptr, nullptr, u"", 8, 6, u"Sec A\0\0\0"s},
        {u"Sec A", nullptr, u"", 16, 14, u"Key1\0k2\0k3\0k4\0\0#"s},
        {u"Sec A", nullptr, u"", 6, 4, u"Key1\0\0"s},
        {u"Sec A", u"Key1", u"", 4, 3, u" v \0"s},
        {u"Sec A", u"Key1", u"", 1, 0, u"\0"s},
        {u"Sec A", u"Key1", u"", 2, 1, u" \0"s},
        {u"nosec", nullptr, u"", 4, 0, u"\0\0##"s},
        {u"", u"x", u"d", 3, 1, u"1\0#"s},
        {u"Sec A", u"", u"d", 3, 1, u"d\0#"s},
    };
    return cases;
}

// A write (absent key: the section goes; absent value: the entry goes) and
// the whole file afterwards. The steps run in order on one file that starts
// as kProfileText; a step with `fresh` starts from no file.
struct ProfileWriteCase {
    bool fresh;
    const char16_t *section, *key, *value;
    int result;
    const char *file;  // absent: no file
};

inline const std::vector<ProfileWriteCase> &profileWriteCases() {
    static const std::vector<ProfileWriteCase> cases = {
        {false, u"Sec A", u"KEY1", u"new", 1,
         "; head\r\nx=1\r\n[Sec A]\r\nKey1=new\r\nk2='q'\r\nnoeq\r\n;c=3\r\nk3=\"a\r\nk4=\r\n[b]\r\nz=9\r\n"
         "[sec a]\r\nk5=dup\r\n"},
        {false, u"Sec A", u"k6", u"six", 1,
         "; head\r\nx=1\r\n[Sec A]\r\nKey1=new\r\nk2='q'\r\nnoeq\r\n;c=3\r\nk3=\"a\r\nk4=\r\nk6=six\r\n[b]\r\n"
         "z=9\r\n[sec a]\r\nk5=dup\r\n"},
        {false, u"new sec", u"a", u"  b", 1,
         "; head\r\nx=1\r\n[Sec A]\r\nKey1=new\r\nk2='q'\r\nnoeq\r\n;c=3\r\nk3=\"a\r\nk4=\r\nk6=six\r\n[b]\r\n"
         "z=9\r\n[sec a]\r\nk5=dup\r\n[new sec]\r\na=b\r\n"},
        {false, u"Sec A", u"k2", nullptr, 1,
         "; head\r\nx=1\r\n[Sec A]\r\nKey1=new\r\nnoeq\r\n;c=3\r\nk3=\"a\r\nk4=\r\nk6=six\r\n[b]\r\nz=9\r\n"
         "[sec a]\r\nk5=dup\r\n[new sec]\r\na=b\r\n"},
        {false, u"b", nullptr, nullptr, 1,
         "; head\r\nx=1\r\n[Sec A]\r\nKey1=new\r\nnoeq\r\n;c=3\r\nk3=\"a\r\nk4=\r\nk6=six\r\n[sec a]\r\n"
         "k5=dup\r\n[new sec]\r\na=b\r\n"},
        {false, u"gone", u"x", nullptr, 1,
         "; head\r\nx=1\r\n[Sec A]\r\nKey1=new\r\nnoeq\r\n;c=3\r\nk3=\"a\r\nk4=\r\nk6=six\r\n[sec a]\r\n"
         "k5=dup\r\n[new sec]\r\na=b\r\n"},
        {false, u"gone", nullptr, nullptr, 1,
         "; head\r\nx=1\r\n[Sec A]\r\nKey1=new\r\nnoeq\r\n;c=3\r\nk3=\"a\r\nk4=\r\nk6=six\r\n[sec a]\r\n"
         "k5=dup\r\n[new sec]\r\na=b\r\n"},
        {true, u"s", u"k", nullptr, 1, nullptr},
        {false, u"s", nullptr, nullptr, 1, nullptr},
        {false, u"s", u"k", u"v", 1, "[s]\r\nk=v\r\n"},
        {false, u"", u"k", u"v", 1, "k=v\r\n[s]\r\nk=v\r\n"},
        {false, u"s", u"", u"e", 1, "k=v\r\n[s]\r\nk=v\r\n=e\r\n"},
        {false, u"S", u"K", u"w", 1, "k=v\r\n[s]\r\nk=w\r\n=e\r\n"},
    };
    return cases;
}

// Files in other forms that a write rewrites.
struct ProfileRewriteCase {
    std::string before;
    const char16_t *section, *key, *value;
    std::string after;
};

inline const std::vector<ProfileRewriteCase> &profileRewriteCases() {
    static const std::vector<ProfileRewriteCase> cases = {
        {"[s]\nk=1\n", u"s", u"j", u"2", "[s]\r\nk=1\r\nj=2\r\n"},
        {"[s]\r\nk=1", u"s", u"j", u"2", "[s]\r\nk=1\r\nj=2\r\n"},
        {"[s]\r\nk=1\r\n", u"u", u"j", u"2", "[s]\r\nk=1\r\n[u]\r\nj=2\r\n"},
        {"\xff\xfe[\0s\0]\0\r\0\n\0k\0=\0\xe4\0\x01\x01\r\0\n\0"s, u"s", u"j", u"\x0102",
         "\xff\xfe[\0s\0]\0\r\0\n\0k\0=\0\xe4\0\x01\x01\r\0\n\0j\0=\0\x02\x01\r\0\n\0"s},
    };
    return cases;
}

}  // namespace filecases

#include "engine/arg_reads.h"

#include "base/utf8.h"

namespace mx {

namespace {

thread_local ArgReadScope *tInnermost = nullptr;
thread_local std::string tFaults;

// The descriptor at position index of sig ("" past its end): X, or
// [*] C|D|L [[]].
std::u16string descriptorAt(const char16_t *sig, int32_t index) {
    const char16_t *p = sig ? sig : u"";
    for (int32_t i = 0; *p; ++i) {
        const char16_t *start = p;
        if (*p != u'X') {
            if (*p == u'*') ++p;
            if (*p) ++p;
            if (p[0] == u'[' && p[1] == u']') p += 2;
        } else {
            ++p;
        }
        if (i == index) return std::u16string(start, size_t(p - start));
    }
    return u"";
}

const char *readName(ArgRead what) {
    switch (what) {
        case ArgRead::kText: return "a text (C[] or *C[])";
        case ArgRead::kLong: return "L";
        case ArgRead::kChar: return "C";
        case ArgRead::kDouble: return "D";
        case ArgRead::kLongRef: return "*L";
        default: return "*D";
    }
}

bool fits(const std::u16string &d, ArgRead what) {
    if (d == u"X") return true;  // handed over as it is
    switch (what) {
        case ArgRead::kText: return d == u"C[]" || d == u"*C[]";
        case ArgRead::kLong: return d == u"L";
        case ArgRead::kChar: return d == u"C";
        case ArgRead::kDouble: return d == u"D";
        case ArgRead::kLongRef: return d == u"*L";
        default: return d == u"*D";
    }
}

}  // namespace

ArgReadScope::ArgReadScope(int32_t n, const char16_t *r, Value *const *a, int32_t c)
    : number(n), reads(r), args(a), count(c), outer_(tInnermost) {
    tInnermost = this;
}

ArgReadScope::~ArgReadScope() { tInnermost = outer_; }

void argReadCheck(const Value *v, ArgRead what) {
    const ArgReadScope *s = tInnermost;
    if (!s) return;
    int32_t index = 0;
    while (index < s->count && s->args[index] != v) ++index;
    std::u16string d = index < s->count ? descriptorAt(s->reads, index) : u"";
    if (index < s->count && fits(d, what)) return;
    std::string fault = "function " + std::to_string(s->number) + " reads ";
    if (index == s->count)
        fault += "a value that is none of its arguments";
    else
        fault += "argument " + std::to_string(index + 1);
    fault += std::string(" as ") + readName(what);
    if (index < s->count)
        fault += ", its entry says " + (d.empty() ? std::string("nothing") : toUtf8(d.c_str()));
    tFaults += fault + "\n";
}

std::string argReadFaults() {
    std::string out;
    out.swap(tFaults);
    return out;
}

}  // namespace mx

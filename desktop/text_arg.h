// A text argument of the desktop functions as a terminated text: the
// argument's own storage when a terminator lies within its capacity,
// otherwise a private terminated copy (a full vector has none).
#pragma once
#include <cstdint>
#include <string>

#include "engine/args.h"

namespace mx {

class DskText {
public:
    explicit DskText(Value *v) {
        const char16_t *s = argText(v);
        int32_t cap = argCapacity(v);
        int32_t n = 0;
        while (s && n < cap && s[n]) ++n;
        len_ = n;
        if (s && n < cap) {
            text_ = s;
        } else if (s) {
            copy_.assign(s, size_t(n));
            text_ = copy_.c_str();
        }
    }
    const char16_t *get() const { return text_; }
    int32_t length() const { return len_; }

private:
    const char16_t *text_ = u"";
    int32_t len_ = 0;
    std::u16string copy_;
};

}  // namespace mx

#include "base/u16_find.h"

namespace mx {

U16Finder::U16Finder(const char16_t *pattern, int32_t m) : p_(pattern), m_(m > 0 ? m : 0), fail_(size_t(m_)) {
    for (int32_t i = 1, k = 0; i < m_; ++i) {
        while (k > 0 && p_[i] != p_[k]) k = fail_[size_t(k - 1)];
        if (p_[i] == p_[k]) ++k;
        fail_[size_t(i)] = k;
    }
}

int32_t U16Finder::find(const char16_t *text, int32_t n, int32_t from) const {
    if (from < 0) from = 0;
    if (m_ == 0) return from <= n ? from : -1;
    for (int32_t i = from, k = 0; i < n; ++i) {
        while (k > 0 && text[i] != p_[k]) k = fail_[size_t(k - 1)];
        if (text[i] == p_[k] && ++k == m_) return i - m_ + 1;
    }
    return -1;
}

void U16Finder::markAll(const char16_t *text, int32_t n, std::vector<bool> &starts) const {
    starts.assign(size_t(n > 0 ? n : 0), false);
    if (m_ == 0) return;
    for (int32_t i = 0, k = 0; i < n; ++i) {
        while (k > 0 && text[i] != p_[k]) k = fail_[size_t(k - 1)];
        if (text[i] == p_[k] && ++k == m_) {
            starts[size_t(i - m_ + 1)] = true;
            k = fail_[size_t(k - 1)];
        }
    }
}

}  // namespace mx

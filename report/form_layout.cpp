#include "report/form_layout.h"

namespace mx {

namespace {
constexpr int32_t kMargin = 10;      // left, top and right of everything
constexpr int32_t kBottomGap = 7;    // below the button row
constexpr int32_t kButtonGap = 4;    // between the buttons and the status field
}  // namespace

FormLayout formLayout(FormRect c, int32_t bw, int32_t bh) {
    FormLayout l;
    l.cancel.right = c.right - kMargin;
    l.cancel.bottom = c.bottom - kBottomGap;
    l.cancel.left = l.cancel.right - bw;
    l.cancel.top = l.cancel.bottom - bh;
    l.ok = {l.cancel.left - kButtonGap - bw, l.cancel.top, l.cancel.left - kButtonGap, l.cancel.bottom};
    l.status = {c.left + kMargin, l.cancel.top, l.ok.left - kButtonGap, l.cancel.bottom};
    l.frame = {c.left + kMargin, c.top + kMargin, c.right - kMargin, c.bottom - bh - kBottomGap - kMargin};
    return l;
}

}  // namespace mx

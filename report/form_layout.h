// Where the form dialog puts its four controls for a client rectangle: the
// buttons in the bottom right corner, the status field to their left, and
// the form's frame filling the rest with a margin.
#pragma once
#include <cstdint>

namespace mx {

struct FormRect {
    int32_t left, top, right, bottom;
};

struct FormLayout {
    FormRect ok;      // button 1
    FormRect cancel;  // button 2
    FormRect status;  // edit field 1014
    FormRect frame;   // frame 1032
};

// The layout for client, with buttons of outer size bw by bh.
FormLayout formLayout(FormRect client, int32_t bw, int32_t bh);

}  // namespace mx

// The list box dialog's flags and layout, shared by both builds.
#include "dialogs/dialogs.h"

namespace mx {

int32_t dlgListDialogFlags(int32_t sort, bool ansiRow) {
    return (sort != 0 ? kListSorted : 0) | (ansiRow ? 0 : kListFromListDialog);
}

ListBoxLayout dlgListBoxLayout(int32_t width, int32_t height, int32_t buttonW, int32_t buttonH) {
    ListBoxLayout l;
    l.listLeft = 10;
    l.listTop = 10;
    l.listRight = width - 10;
    l.listBottom = height - 10 - buttonH - 10;
    l.okLeft = (width - 2 * buttonW - 5) / 2;
    l.cancelLeft = l.okLeft + buttonW + 5;
    l.buttonTop = l.listBottom + 10;
    return l;
}

}  // namespace mx

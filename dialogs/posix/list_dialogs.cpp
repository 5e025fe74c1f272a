// The list box and list view dialogs, native. Without an answer source
// neither dialog can be created: the list box dialog answers 0, the list view
// dialog -1. With one, the list file is read as the real dialog reads it
// (the same box when it cannot be), sorted as a sorted list shows it, and
// the answer selects and confirms or cancels.
#include <algorithm>

#include "base/u16.h"
#include "dialogs/dialog_answers.h"
#include "dialogs/dialogs.h"
#include "helperlib/kelvane_lists.h"
#include "helperlib/kelvane_text.h"

namespace mx {

namespace {

constexpr int32_t kEntryReadCapacity = 1000;

char16_t folded(char16_t c) { return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c; }

// A sorted list compares without regard to the case of ASCII letters.
bool before(const ListEntry &a, const ListEntry &b) {
    const std::u16string &x = a.display(), &y = b.display();
    return std::lexicographical_compare(x.begin(), x.end(), y.begin(), y.end(),
                                        [](char16_t p, char16_t q) { return folded(p) < folded(q); });
}

// The entries selected after the answer: a single-selection list starts
// with its first entry selected, a multiple-selection one with none.
std::vector<int32_t> selection(const DialogAnswer &a, int32_t count, bool multi) {
    std::vector<int32_t> picked;
    if (a.action == AnswerAction::kOk) {
        if (!multi && count > 0) picked.push_back(0);
        return picked;
    }
    for (int32_t p : a.picks) {
        if (p < 1 || p > count) continue;
        if (!multi) picked.assign(1, p - 1);
        else if (std::find(picked.begin(), picked.end(), p - 1) == picked.end()) picked.push_back(p - 1);
    }
    std::sort(picked.begin(), picked.end());
    return picked;
}

int32_t accept(ListBoxRecord &r, const std::vector<ListEntry> &entries, const std::vector<int32_t> &picked) {
    if (r.first && r.firstCapacity > 0) r.first[0] = 0;
    if (r.second && r.secondCapacity > 0) r.second[0] = 0;
    if (picked.empty()) return kListNothingSelected;
    bool multi = r.flags & kListMulti;
    char16_t entry[kEntryReadCapacity];
    for (size_t i = 0; i < picked.size(); ++i) {
        const ListEntry &e = entries[size_t(picked[i])];
        if (!multi) {
            KelvaneCopyStringW(r.first, e.display().c_str(), r.firstCapacity);
            KelvaneCopyStringW(r.second, e.hidden().c_str(), r.secondCapacity);
            break;
        }
        if (i > 0) {
            KelvaneAppendStringW(r.first, u"\t", r.firstCapacity);
            KelvaneAppendStringW(r.second, u"\t", r.secondCapacity);
        }
        // The real dialog reads each display text through a 1000-unit buffer.
        u16Copy(entry, kEntryReadCapacity, e.display().c_str());
        KelvaneAppendStringW(r.first, entry, r.firstCapacity);
        KelvaneAppendStringW(r.second, e.hidden().c_str(), r.secondCapacity);
    }
    return picked.front() + 1;
}

}  // namespace

int32_t dlgListBoxDialog(ListBoxRecord &r) {
    r.result = 0;
    DialogAnswerSource source = dialogsAnswerSource();
    if (!source) return r.result;
    std::vector<ListEntry> entries;
    kelvaneReadListFile(r.file, nullptr, entries);
    if (r.flags & kListSorted) std::stable_sort(entries.begin(), entries.end(), before);
    DialogAnswer a = source(DialogKind::kListBox, r.title ? r.title : u"");
    if (a.action == AnswerAction::kCancel) return r.result = kListCancelled;
    r.result = accept(r, entries, selection(a, int32_t(entries.size()), r.flags & kListMulti));
    return r.result;
}

int32_t dlgListViewDialog(const char16_t *title, const char16_t *, const char16_t *file, int32_t) {
    DialogAnswerSource source = dialogsAnswerSource();
    if (!source) return -1;
    std::vector<ListEntry> entries;
    kelvaneReadListFile(file, nullptr, entries);
    return source(DialogKind::kListView, title ? title : u"").action == AnswerAction::kOk ? 1 : 2;
}

}  // namespace mx

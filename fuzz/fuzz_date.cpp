// The date parser of the helper library and its writer: any text in any
// format reads without fault; a date it accepts writes back into a buffer of
// a chosen capacity without passing it.
#include "fuzz_input.h"
#include "helperlib/kelvane_date.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzInput in{data, size};
    int32_t cap = 1 + in.byte() % 64;
    std::u16string format = in.text(true);
    std::u16string text = in.rest(true);
    mx::KelvaneDateTime rec{};
    if (mx::FormattedDate_To_DateTimeStructW(text.c_str(), format.c_str(), &rec) != 0) return 0;
    char16_t *out = new char16_t[size_t(cap)];
    mx::DateTimeStruct_To_FormattedDateW(&rec, format.c_str(), out, cap);
    mx::Get_DaysSinceBaseDate(&rec);
    mx::Get_Weekday(&rec);
    delete[] out;
    return 0;
}

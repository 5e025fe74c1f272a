// The local date and time from the C runtime's clock.
#include <ctime>

#include "helperlib/kelvane_date.h"

namespace mx {

int32_t Get_CurrentDateAndTime(KelvaneDateTime *rec) {
    if (!rec) return -1;
    std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    Kelvane_SetDateTimeStruct(rec, local.tm_mday, local.tm_mon + 1, local.tm_year + 1900, local.tm_hour,
                              local.tm_min, local.tm_sec > 59 ? 59 : local.tm_sec);
    return 0;
}

}  // namespace mx

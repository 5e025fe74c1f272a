#include "odbc/driver_locale.h"

#include <locale.h>

namespace mx {

namespace {
// Made once and kept for the process: switching to it is then cheap.
locale_t userLocale() {
    static locale_t user = newlocale(LC_CTYPE_MASK, "", static_cast<locale_t>(0));
    return user;
}
}  // namespace

DriverCharset::DriverCharset() : saved_(nullptr) {
    if (locale_t user = userLocale()) saved_ = uselocale(user);
}

DriverCharset::~DriverCharset() {
    if (saved_) uselocale(static_cast<locale_t>(saved_));
}

}  // namespace mx

#include "odbc/driver_locale.h"

namespace mx {

// The Windows driver manager converts through the system's code pages.
DriverCharset::DriverCharset() : saved_(nullptr) {}
DriverCharset::~DriverCharset() {}

}  // namespace mx

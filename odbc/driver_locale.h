// The character set in which the driver manager talks to drivers without
// wide entry points.
#pragma once

namespace mx {

// While one of these lives, the calling thread classifies characters by the
// environment's locale (LC_ALL, LC_CTYPE, LANG): the driver manager converts
// texts for 8-bit drivers by the thread's locale, so they then travel in the
// user's character set (UTF-8 under C.UTF-8) even when the host never set
// its locale. The process-wide locale is left alone. Nothing happens where
// the platform converts by itself.
class DriverCharset {
public:
    DriverCharset();
    ~DriverCharset();
    DriverCharset(const DriverCharset &) = delete;
    DriverCharset &operator=(const DriverCharset &) = delete;

private:
    void *saved_;
};

}  // namespace mx

#include "host_common.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>

#include "base/utf8.h"

namespace {
const char16_t *core(const WCHAR *s) { return reinterpret_cast<const char16_t *>(s); }

long abortAfter = -1;
long abortCalls = 0;

bool toLong(const std::u16string &s, long *out) {
    std::string a = mx::toUtf8(s.c_str());
    char *end = nullptr;
    *out = std::strtol(a.c_str(), &end, 10);
    return !a.empty() && end && *end == 0;
}

std::string fixed6(double d) {
    char buf[400];
    auto r = std::to_chars(buf, buf + sizeof buf, d, std::chars_format::fixed, 6);
    return r.ec == std::errc() ? std::string(buf, r.ptr) : std::string();
}
}  // namespace

const MX_FUNCTION_ROW kHostTable[] = {
    {MX_TEXT("Print"), 1, MX_TEXT("X"), MX_TEXT("Value")},
    {nullptr, 0, nullptr, nullptr},
};

const char *hostUsage() {
    return "usage: HOST [--country N] [--title T] [--abort-after N] [--unattended] [--answers F] FILE [PARAM...]\n"
           "       HOST [--country N] [--title T] [--abort-after N] [--unattended] [--answers F] -e TEXT\n"
           "       HOST --check [--host NAME[=SIGNATURE]]... FILE...   (read for mistakes, run nothing)\n";
}

bool hostParseArgs(const std::vector<std::u16string> &args, HostOptions &o, std::string &error) {
    size_t i = 0;
    for (; i < args.size(); ++i) {
        const std::u16string &a = args[i];
        bool takesValue = a == u"--country" || a == u"--title" || a == u"--abort-after" || a == u"-e" ||
                         a == u"--answers";
        if (takesValue && i + 1 >= args.size()) {
            error = "option " + mx::toUtf8(a.c_str()) + " needs a value";
            return false;
        }
        if (a == u"--country") {
            if (!toLong(args[++i], &o.country)) return error = "--country needs a number", false;
        } else if (a == u"--title") {
            o.hasTitle = true;
            o.title = args[++i];
        } else if (a == u"--abort-after") {
            if (!toLong(args[++i], &o.abortAfter)) return error = "--abort-after needs a number", false;
        } else if (a == u"--answers") {
            o.answers = args[++i];
            if (o.answers.empty()) return error = "--answers needs a file", false;
        } else if (a == u"--unattended") {
            o.unattended = true;
        } else if (a == u"-e") {
            o.memory = true;
            o.text = args[++i];
            return i + 1 == args.size() || (error = "nothing may follow -e TEXT", false);
        } else if (a.size() > 1 && a[0] == u'-' && a[1] == u'-') {
            error = "unknown option " + mx::toUtf8(a.c_str());
            return false;
        } else {
            break;
        }
    }
    if (i >= args.size()) return error = "no macro file given", false;
    o.file = args[i];
    o.params.assign(args.begin() + long(i) + 1, args.end());
    return true;
}

std::u16string hostMacroCommand(const HostOptions &o) {
    auto quoted = [](const std::u16string &w) {
        return w.find(u' ') == std::u16string::npos ? w : u"\"" + w + u"\"";
    };
    std::u16string cmd = quoted(o.file);
    for (const std::u16string &p : o.params) cmd += u" " + quoted(p);
    return cmd;
}

std::string hostFormatValue(const MX_VALUE *v) {
    if (!v || !v->data) return std::string();
    switch (v->type) {
        case MX_TYPE_CHAR:
            if (v->count) {
                const char16_t *s = core(static_cast<const WCHAR *>(v->data));
                long n = 0;
                while (n < v->count && s[n]) ++n;
                return mx::toUtf8(s, n);
            }
            return mx::toUtf8(core(static_cast<const WCHAR *>(v->data)), 1);
        case MX_TYPE_LONG:
            if (v->count) return "Long [" + std::to_string(v->count) + "]";
            return std::to_string(*static_cast<const LONG *>(v->data));
        case MX_TYPE_DOUBLE:
            if (v->count) return "Double [" + std::to_string(v->count) + "]";
            return fixed6(*static_cast<const double *>(v->data));
        default: return std::string();
    }
}

void hostWriteOut(const std::string &bytes) {
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
    std::fflush(stdout);
}

LONG CALLBACK hostFunction(LONG number, MX_VALUE **args, LONG count, LONG_PTR) {
    if (number == 1 && count == 1) hostWriteOut(hostFormatValue(args[0]) + "\n");
    return 0;
}

void hostSetAbortAfter(long n) {
    abortAfter = n;
    abortCalls = 0;
}

LONG CALLBACK hostAbort(void) {
    ++abortCalls;
    return abortAfter >= 0 && abortCalls >= abortAfter ? 1 : 0;
}

int hostExitStatus(LONG r) { return r == 0 ? 0 : r == -2 ? 2 : 1; }

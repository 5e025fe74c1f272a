// Paths and module information on Linux (see platform/paths.h for the
// stand-ins chosen for the Windows notions).
#include "platform/paths.h"

#include <limits.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "base/u16.h"
#include "base/utf8.h"

namespace mx {

namespace {

std::string envOr(const char *name, const std::string &fallback) {
    const char *v = std::getenv(name);
    return v && *v ? std::string(v) : fallback;
}

std::string homeDirectory() {
    const char *home = std::getenv("HOME");
    if (home && *home) return home;
    struct passwd *pw = getpwuid(getuid());
    return pw && pw->pw_dir ? pw->pw_dir : "/tmp";
}

std::string stripSlashes(std::string s) {
    while (s.size() > 1 && s.back() == '/') s.pop_back();
    return s;
}

std::string currentDirectory() {
    std::string buf(PATH_MAX, '\0');
    while (!getcwd(buf.data(), buf.size())) {
        if (errno != ERANGE) return {};
        buf.resize(buf.size() * 2);
    }
    return buf.c_str();
}

// The platform's answer for a text that may not fit: its length when it
// does, else the size it needs.
int32_t answerFitting(const std::u16string &text, char16_t *buf, int32_t capacity) {
    if (text.empty()) return 0;
    if (int32_t(text.size()) >= capacity) return int32_t(text.size()) + 1;
    return u16Copy(buf, capacity, text.c_str());
}

}  // namespace

int32_t mxp_ModuleFileName(ModuleHandle, char16_t *buf, int32_t capacity) {
    std::string path(PATH_MAX, '\0');
    ssize_t n = readlink("/proc/self/exe", path.data(), path.size() - 1);
    path.resize(n > 0 ? size_t(n) : 0);
    return u16Copy(buf, capacity, fromUtf8(path).c_str());
}

int32_t mxp_WindowsDirectory(char16_t *buf, int32_t capacity) {
    std::string config = envOr("XDG_CONFIG_HOME", homeDirectory() + "/.config") + "/morvix";
    return u16Copy(buf, capacity, fromUtf8(stripSlashes(envOr("MORVIX_WINDOWS_DIR", config))).c_str());
}

int32_t mxp_CurrentDirectory(char16_t *buf, int32_t capacity) {
    return answerFitting(fromUtf8(currentDirectory()), buf, capacity);
}

int32_t mxp_ShortPathName(const char16_t *path, char16_t *buf, int32_t capacity) {
    struct stat st;
    std::string name = toUtf8(path);
    if (name.empty() || stat(name.c_str(), &st) != 0) return 0;
    return answerFitting(path, buf, capacity);
}

int32_t mxp_TempDirectory(char16_t *buf, int32_t capacity) {
    return u16Copy(buf, capacity, fromUtf8(stripSlashes(envOr("TMPDIR", "/tmp"))).c_str());
}

std::u16string mxp_FullPath(const char16_t *path) {
    std::string name = toUtf8(path);
    if (!name.empty() && name[0] == '/') return fromUtf8(name);
    std::string cwd = currentDirectory();
    if (name.empty()) return fromUtf8(cwd);
    return fromUtf8(cwd == "/" ? "/" + name : cwd + "/" + name);
}

bool mxp_FileVersion(const char16_t *, uint16_t version[4]) {
    for (int i = 0; i < 4; ++i) version[i] = 0;
    return false;
}

char16_t mxp_NameFold(char16_t c) { return c; }

char16_t mxp_PathSeparator() { return u'/'; }

std::string mxp_ToAnsi(const char16_t *text) {
    std::string out;
    for (const char16_t *p = text; p && *p; ++p) out += *p < 256 ? char(*p) : '?';
    return out;
}

std::u16string mxp_FromAnsi(const char *text) {
    std::u16string out;
    for (const char *p = text; p && *p; ++p) out += char16_t(static_cast<unsigned char>(*p));
    return out;
}

}  // namespace mx

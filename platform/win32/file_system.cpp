// The file system operations of platform/files.h with the Win32 API and the
// C runtime.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include "base/u16.h"
#include "platform/files.h"
#include "platform/win32/wide.h"

namespace mx {

namespace {
bool empty(const char16_t *s) { return !s || !*s; }
}  // namespace

int32_t mxp_FileRename(const char16_t *oldPath, const char16_t *newPath) {
    if (empty(oldPath) || empty(newPath)) return -1;
    return _wrename(wide(oldPath), wide(newPath)) == 0 ? 0 : -1;
}

int32_t mxp_FileRemove(const char16_t *path) {
    if (empty(path)) return -1;
    return _wremove(wide(path)) == 0 ? 0 : -1;
}

int32_t mxp_MakeDirectory(const char16_t *path) {
    if (empty(path)) return -1;
    if (CreateDirectoryW(wide(path), nullptr)) return 0;
    return GetLastError() == ERROR_ALREADY_EXISTS && mxp_PathKind(path) == PathKind::kDirectory ? 0 : -1;
}

PathKind mxp_PathKind(const char16_t *path) {
    if (empty(path)) return PathKind::kMissing;
    DWORD a = GetFileAttributesW(wide(path));
    if (a == INVALID_FILE_ATTRIBUTES) return PathKind::kMissing;
    return (a & FILE_ATTRIBUTE_DIRECTORY) ? PathKind::kDirectory : PathKind::kFile;
}

bool mxp_ListDirectory(const char16_t *dir, std::vector<MxpDirEntry> &out) {
    std::wstring pattern = empty(dir) ? L"." : wide(dir);
    if (pattern.back() != L'\\' && pattern.back() != L'/' && pattern.back() != L':') pattern += L'\\';
    pattern += L'*';
    WIN32_FIND_DATAW fd;
    HANDLE h = FindFirstFileW(pattern.c_str(), &fd);
    if (h == INVALID_HANDLE_VALUE) return false;
    out.clear();
    do {
        std::wstring name = fd.cFileName;
        if (name == L"." || name == L"..") continue;
        bool isDir = (fd.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) &&
                     !(fd.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT);
        out.push_back({std::u16string(narrow(name.c_str())), isDir});
    } while (FindNextFileW(h, &fd));
    FindClose(h);
    std::sort(out.begin(), out.end(),
              [](const MxpDirEntry &a, const MxpDirEntry &b) { return a.name < b.name; });
    return true;
}

int32_t mxp_CreateUniqueFile(const char16_t *dir, const char16_t *prefix, char16_t *buf,
                             int32_t capacity) {
    wchar_t name[MAX_PATH];
    if (!GetTempFileNameW(empty(dir) ? L"." : wide(dir), prefix ? wide(prefix) : L"", 0, name)) return -1;
    if (int32_t(wcslen(name)) >= capacity) {
        DeleteFileW(name);
        return -1;
    }
    return u16Copy(buf, capacity, narrow(name));
}

bool mxp_FileReplace(const char16_t *path, const void *data, size_t size) {
    if (empty(path) || size > MAXDWORD) return false;
    std::wstring temp = std::wstring(wide(path)) + L".mx-new";
    HANDLE h =
        CreateFileW(temp.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    bool ok = WriteFile(h, data, DWORD(size), &written, nullptr) && written == size && FlushFileBuffers(h);
    ok = CloseHandle(h) && ok;
    if (ok && MoveFileExW(temp.c_str(), wide(path), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return true;
    DeleteFileW(temp.c_str());
    return false;
}

}  // namespace mx

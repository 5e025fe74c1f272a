// Helper library, Linux: run-time modules are shared objects (see
// kelvane_modules.h for the name mapping and the search order).
#include <dlfcn.h>

#include <cstdlib>
#include <string>

#include "base/utf8.h"
#include "helperlib/kelvane_modules.h"

namespace mx {

namespace {

// "DIR\PRTENG32W.DLL" -> "DIR/prteng32w.so".
std::string sharedObjectName(const char16_t *fileName) {
    std::string path = toUtf8(fileName);
    size_t cut = path.find_last_of("\\/");
    size_t start = cut == std::string::npos ? 0 : cut + 1;
    for (size_t i = 0; i < start; ++i)
        if (path[i] == '\\') path[i] = '/';
    for (size_t i = start; i < path.size(); ++i)
        if (path[i] >= 'A' && path[i] <= 'Z') path[i] = char(path[i] - 'A' + 'a');
    if (path.size() >= start + 4 && path.compare(path.size() - 4, 4, ".dll") == 0)
        path.replace(path.size() - 4, 4, ".so");
    return path;
}

}  // namespace

ModuleHandle LoadDynamicLibraryW(const char16_t *fileName) {
    if (!fileName || !*fileName) return nullptr;
    std::string name = sharedObjectName(fileName);
    if (name.find('/') != std::string::npos) return dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (const char *dirs = std::getenv("MORVIX_MODULE_PATH")) {
        std::string list = dirs;
        size_t pos = 0;
        while (pos <= list.size()) {
            size_t end = list.find(':', pos);
            if (end == std::string::npos) end = list.size();
            if (end > pos) {
                std::string candidate = list.substr(pos, end - pos) + "/" + name;
                if (void *module = dlopen(candidate.c_str(), RTLD_NOW | RTLD_LOCAL)) return module;
            }
            pos = end + 1;
        }
    }
    return dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
}

void *Kelvane_GetProcAddressW(ModuleHandle module, const char16_t *name) {
    if (!module || !name || !*name) return nullptr;
    std::string ascii;
    for (const char16_t *p = name; *p; ++p) {
        if (*p > 0x7F) return nullptr;
        ascii += char(*p);
    }
    return dlsym(module, ascii.c_str());
}

void Kelvane_FreeDynamicLibrary(ModuleHandle module) {
    if (module) dlclose(module);
}

}  // namespace mx

// Processes and the environment natively. A machine without a desktop has
// no shell associations: ShellExecute and FindExecutable answer -1.
#include <cstdlib>
#include <string>

#include "base/u16.h"
#include "base/utf8.h"
#include "desktop/command_words.h"
#include "desktop/processes.h"
#include "platform/spawn.h"

namespace mx {

int32_t dskCreateProcess(const char16_t *commandLine, int32_t) {
    return mxp_SpawnDetached(dskCommandWords(commandLine)) == 0 ? 0 : -1;
}

int32_t dskExecuteProgramModal(const char16_t *commandLine, int32_t, int32_t *exitCode) {
    return mxp_SpawnAndWait(dskCommandWords(commandLine), exitCode);
}

int32_t dskShellExecute(const char16_t *, const char16_t *, int32_t) { return -1; }

int32_t dskFindExecutable(const char16_t *, char16_t *, int32_t) { return -1; }

int32_t dskGetEnvironment(const char16_t *name, char16_t *value, int32_t capacity) {
    int32_t n = 0;
    while (name && name[n] && n < 99) ++n;
    const char *found = std::getenv(toUtf8(name, n).c_str());
    if (!found) return -1;
    u16Copy(value, capacity, fromUtf8(found).c_str());
    return 0;
}

}  // namespace mx

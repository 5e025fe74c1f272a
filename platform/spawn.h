// Starting programs from a word list, for the native build (the Win32 code
// starts processes with the platform's own command-line calls). The program
// is searched along PATH when its name has no slash.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace mx {

// Starts argv without waiting; the process is not the caller's child (no
// zombie is left behind). Returns 0, or the error number why it could not be
// started (2: no such program).
int32_t mxp_SpawnDetached(const std::vector<std::string> &argv);

// Starts argv and waits for its end; *exitCode = its exit status (128 +
// signal number when a signal ended it). Returns 0, or the error number why
// it could not be started (*exitCode unchanged).
int32_t mxp_SpawnAndWait(const std::vector<std::string> &argv, int32_t *exitCode);

}  // namespace mx

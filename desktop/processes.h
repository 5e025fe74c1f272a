// Starting programs, with or without waiting, the shell's associations, and
// environment variables.
#pragma once
#include <cstdint>

namespace mx {

// Starts commandLine as a new process with show mode showMode (its low 16
// bits), without waiting; every handle of it is released at once. Returns 0,
// -1 when it could not be started.
int32_t dskCreateProcess(const char16_t *commandLine, int32_t showMode);

// Starts commandLine with show mode showFlag (0: 5, shown) and waits without
// time limit for its end; *exitCode = its exit code. Returns 0, or the
// platform's error number (2 for a missing program) with *exitCode unchanged.
int32_t dskExecuteProgramModal(const char16_t *commandLine, int32_t showFlag, int32_t *exitCode);

// The shell performs verb on file with show mode showFlags. Returns 0, -1 on
// failure (an unknown verb, no association, no shell).
int32_t dskShellExecute(const char16_t *file, const char16_t *verb, int32_t showFlags);

// program = the program the shell associates with file, within capacity.
// Returns 0, -1 (program unchanged) when there is none.
int32_t dskFindExecutable(const char16_t *file, char16_t *program, int32_t capacity);

// value = the environment variable name (its first 99 characters), within
// capacity. Returns 0, -1 (value unchanged) when it is not set.
int32_t dskGetEnvironment(const char16_t *name, char16_t *value, int32_t capacity);

}  // namespace mx

// OpenFile, CloseFile, ReadFile and WriteFile: line-oriented streams in the
// five file slots of a run. A handle is the slot number 1 to 5; a handle
// that names no open stream touches no stream.
#pragma once
#include <cstdint>

#include "engine/run_context.h"

namespace mx {

// Opens name with the C runtime mode text in the first empty slot, denying
// others all access while it is open. Returns the handle; 0 without a
// message when all slots are in use; 0 after setting the run's error (111 to
// 115 with name as its argument) and showing the macro error box when the
// open fails. The run goes on either way.
int32_t fsOpenFile(RunContext &ctx, const char16_t *name, const char16_t *mode);

// Closes the stream and empties its slot. Returns 0, -1 for a handle that
// names no open stream (0 among them).
int32_t fsCloseFile(RunContext &ctx, int32_t handle);

// Reads the next line (with its line break) or capacity - 1 units of it into
// buf, terminated. Returns 0 when something was read, 1 at the end of the
// file, on an error, for a buffer without room for a character and for a
// handle that names no open stream (buf then empty).
int32_t fsReadFile(RunContext &ctx, int32_t handle, char16_t *buf, int32_t capacity);

// Writes text as the stream's mode translates it, no line break added.
// Returns 0, -1 when a character could not be written or the handle names
// no open stream.
int32_t fsWriteFile(RunContext &ctx, int32_t handle, const char16_t *text);

}  // namespace mx

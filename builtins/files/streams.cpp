#include "builtins/files/streams.h"

#include "engine/errors.h"
#include "platform/files.h"

namespace mx {

namespace {

// The slot a handle names, or absent.
MxpFile **slotOf(RunContext &ctx, int32_t handle) {
    if (handle < 1 || handle > kFileSlots || !ctx.files[handle - 1]) return nullptr;
    return &ctx.files[handle - 1];
}

}  // namespace

int32_t fsOpenFile(RunContext &ctx, const char16_t *name, const char16_t *mode) {
    for (int32_t slot = 0; slot < kFileSlots; ++slot) {
        if (ctx.files[slot]) continue;
        OpenError why = OpenError::kNone;
        ctx.files[slot] = mxp_FileOpen(name, mode, Share::kDenyReadWrite, &why);
        if (ctx.files[slot]) return slot + 1;
        errSet(ctx, errOpenFailure(why), name);
        errShowMacroError(ctx);
        return 0;
    }
    return 0;
}

int32_t fsCloseFile(RunContext &ctx, int32_t handle) {
    MxpFile **slot = slotOf(ctx, handle);
    if (!slot) return -1;
    mxp_FileClose(*slot);
    *slot = nullptr;
    return 0;
}

int32_t fsReadFile(RunContext &ctx, int32_t handle, char16_t *buf, int32_t capacity) {
    if (!buf || capacity < 1) return 1;
    buf[0] = 0;
    MxpFile **slot = slotOf(ctx, handle);
    if (!slot || capacity < 2) return 1;
    return mxp_FileReadLine(*slot, buf, capacity) < 0 ? 1 : 0;
}

int32_t fsWriteFile(RunContext &ctx, int32_t handle, const char16_t *text) {
    MxpFile **slot = slotOf(ctx, handle);
    if (!slot) return -1;
    return mxp_FilePutText(*slot, text) < 0 ? -1 : 0;
}

}  // namespace mx

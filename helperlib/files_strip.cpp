// Helper library: 8-bit path cutting with the built-ins' rules.
#include "base/path_surgery.h"
#include "helperlib/kelvane_files.h"

namespace mx {

int32_t Kelvane_StripFileNameA(char *path) { return path ? psStripFilename(path) : 0; }

int32_t Kelvane_StripPathA(char *path) { return path ? psStripPath(path) : 0; }

}  // namespace mx

// The released Value records that the engine keeps for reuse.
#pragma once

namespace mx {

// Frees every record kept for reuse; called when the library is detached.
void valReleaseSpare();

}  // namespace mx

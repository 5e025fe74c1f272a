// Every family of built-ins the library implements, installed in the
// engine's dispatcher.
#pragma once

namespace mx {

// Installs the families of builtins/ and of the subsystems. Idempotent.
void installBuiltinFamilies();

}  // namespace mx

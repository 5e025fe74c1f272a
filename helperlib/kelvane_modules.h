// Helper library: run-time modules. The library loads the report engine and
// the form module for one call and unloads them again.
//
// On Linux a module is a shared object. The name the caller gives is mapped:
// its last component (after the last '\' or '/') is lower-cased and a ".dll"
// ending becomes ".so" ("PRTENG32W.DLL" -> "prteng32w.so"); backslashes of the
// directory part become slashes. A name without a directory is searched in
// each directory of $MORVIX_MODULE_PATH (separated by ':') in turn, then the
// dynamic loader's own way (LD_LIBRARY_PATH, the system directories).
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// Loads the module fileName (the platform's search order applies to a bare
// name). Returns its handle, absent on failure (missing file, not a module,
// wrong architecture, a failing initialisation).
ModuleHandle LoadDynamicLibraryW(const char16_t *fileName);

// The entry point name of module, absent when it is missing or the name is
// absent, empty or not plain ASCII. No side effects.
void *Kelvane_GetProcAddressW(ModuleHandle module, const char16_t *name);

// Unloads a module loaded by LoadDynamicLibraryW; absent does nothing.
void Kelvane_FreeDynamicLibrary(ModuleHandle module);

}  // namespace mx

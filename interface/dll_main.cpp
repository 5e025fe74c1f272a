// The DLL entry point: process attach and detach. Thread attach and detach do
// nothing.
#include <windows.h>

#include "interface/attach.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    switch (reason) {
        case DLL_PROCESS_ATTACH: return mx::processAttach(instance) ? TRUE : FALSE;
        case DLL_PROCESS_DETACH: mx::processDetach(); return TRUE;
        default: return TRUE;
    }
}

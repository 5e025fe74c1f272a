/* A host without any C runtime, compiled by clang for the Microsoft ABI and
 * linked by lld-link against morvix32w.lib alone: it proves that the import
 * library in the Microsoft format resolves the exports (on x86, their
 * decorated stdcall names). Its exit status is 0 when the DLL answers with
 * the expected version and runs a memory macro. */
typedef unsigned short mxchar;

__declspec(dllimport) long __stdcall Morvix_GetVersion(mxchar *buffer, long capacity);
__declspec(dllimport) long __stdcall Run_MemMacro(void *instance, void *window, const mxchar *text,
                                                  const void *table, void *callback, void *abort,
                                                  __INTPTR_TYPE__ value, long country, long reserved);

static const mxchar kExpected[] = EXPECTED_VERSION;
static const mxchar kMacro[] = u"int x; x = 6 * 7; exit;";

int start(void) {
    mxchar buffer[32];
    long n = Morvix_GetVersion(buffer, 32);
    if (n != (long)(sizeof kExpected / sizeof kExpected[0]) - 1) return 2;
    for (long i = 0; i <= n; ++i)
        if (buffer[i] != kExpected[i]) return 3;
    return Run_MemMacro(0, 0, kMacro, 0, 0, 0, 0, 1, 0) == 0 ? 0 : 4;
}

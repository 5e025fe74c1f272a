// Run errors: the error code (a message number of the string table) and its
// text argument in the Run context, and the boxes that show them.
#pragma once
#include <cstdint>

#include "engine/run_context.h"
#include "platform/files.h"

namespace mx {

enum ErrorCode : int32_t {
    kErrFrame = 100,  // frame text of the macro error box
    kErrTitle = 101,
    kErrFile = 111,
    kErrFileExists = 112,
    kErrFileNotFound = 113,
    kErrTooManyFiles = 114,
    kErrFileAccess = 115,
    kErrNoMemory = 116,
    kErrKeywordMissing = 117,
    kErrUnexpectedEnd = 118,
    kErrUnexpectedChar = 119,
    kErrCharExpected = 120,
    kErrKeywordNotAllowed = 121,
    kErrBadNumber = 123,
    kErrVarExists = 124,
    kErrVarUndeclared = 125,
    kErrFormulaTooLong = 126,
    kErrBadOperand = 127,
    kErrOperatorMissing = 128,
    kErrBrackets = 129,
    kErrStringEnd = 130,
    kErrStackOverflow = 131,
    kErrTypeMismatch = 132,
    kErrAssignConstant = 133,
    kErrDivisionByZero = 134,
    kErrBadOperator = 135,
    kErrNameMissing = 137,
    kErrTooManyParams = 138,
    kErrTooFewParams = 139,
    kErrNeedVector = 140,
    kErrNeedScalar = 141,
    kErrNeedVariable = 142,
    kErrWrongType = 143,
    kErrVectorNotAllowed = 144,
    kErrNotIndexable = 145,
    kErrIndexRange = 146,
    kErrBadCharConstant = 147,
    kErrTableSyntax = 148,
    kErrTableUnsorted = 149,
    kErrMacroNameMissing = 151,
    kErrTooLarge = 152,
    kErrSysNoMemory = 153,
    kErrAborted = 198,
};

// Stores code and at most 127 units of arg (absent: empty) in the context.
void errSet(RunContext &ctx, int32_t code, const char16_t *arg = nullptr);

// Like errSet, with an argument of exactly n units (it need not be terminated).
void errSetN(RunContext &ctx, int32_t code, const char16_t *arg, int32_t n);

// The error code of a failed file open: 113 not found, 115 access denied,
// 112 exists, 114 too many open files, 111 anything else.
int32_t errOpenFailure(OpenError why);

// Loads message number from the library's string table into buf and lets the
// translation helper translate it in place. Returns its length (0: none).
int32_t errLoadMessage(uint32_t number, char16_t *buf, int32_t capacity);

// Puts the macro error text together (message with its first "%s" replaced by
// the argument when it fits in 200 units) into buf. Returns its length.
int32_t errFormatMessage(const RunContext &ctx, char16_t *buf, int32_t capacity);

// Shows the macro error box for the context's error: line, macro title and
// message. Returns when the user has closed it.
void errShowMacroError(const RunContext &ctx);

// Shows the system error box with string number and up to three arguments.
void errShowSystemError(uint32_t number, const char16_t *a1 = nullptr,
                        const char16_t *a2 = nullptr, const char16_t *a3 = nullptr);

}  // namespace mx

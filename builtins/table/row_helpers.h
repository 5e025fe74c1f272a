// Shared pieces of the built-in row lists: each family header under this
// folder lists its rows in a readable order; builtins/table.cpp merges and
// sorts them at compile time.
#pragma once
#include <cstdint>

#include "engine/function_numbers.h"
#include "engine/types.h"

namespace mx::rows {

// German spellings carry the spelling flag on top of the function number,
// so `kDe | fnum::LeftString` reads "function 15, German row" (identifier 65551).
constexpr uint32_t kDe = kSpellingFlag;

// A named constant: a row without signature whose identifier is its value.
constexpr FunctionRow biConstant(const char16_t *name, uint32_t value) {
    return FunctionRow{name, value, nullptr, nullptr};
}

}  // namespace mx::rows

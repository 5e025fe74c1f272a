// The built-in function table: 318 rows sorted by ordinal UTF-16 comparison
// of their names, followed by one all-zero row.
#pragma once
#include <cstdint>

#include "engine/types.h"

namespace mx {

constexpr int32_t kBuiltinRows = 318;

// The first row; kBuiltinRows rows and then the all-zero row.
const FunctionRow *biTable();

}  // namespace mx

// Splitting a command line into program and arguments where the platform
// starts a program from a word list (the native build). Words are separated
// by blanks and tabs; a double-quoted stretch belongs to its word with the
// quotes removed, and \" stands for a quote character.
#pragma once
#include <string>
#include <vector>

namespace mx {

// The words of commandLine, UTF-8; empty when it holds none.
std::vector<std::string> dskCommandWords(const char16_t *commandLine);

}  // namespace mx

# Turns resources/messages.txt into the two forms the builds need:
#   OUT_RC  - a STRINGTABLE for the Windows resource compiler (UTF-8, code page 65001)
#   OUT_INC - rows { number, u"text" } compiled into the native build
# Usage: cmake -DIN=messages.txt -DOUT_RC=... -DOUT_INC=... -P gen_messages.cmake
file(STRINGS "${IN}" lines ENCODING UTF-8)
set(rc "// Generated from messages.txt; do not edit.\n#pragma code_page(65001)\nSTRINGTABLE\nBEGIN\n")
set(inc "// Generated from messages.txt; do not edit.\n")
foreach(line IN LISTS lines)
  if(line MATCHES "^#" OR line STREQUAL "")
    continue()
  endif()
  if(NOT line MATCHES "^([0-9]+)\t(.*)$")
    message(FATAL_ERROR "messages.txt: bad line: ${line}")
  endif()
  set(num "${CMAKE_MATCH_1}")
  set(text "${CMAKE_MATCH_2}")
  # The resource compiler doubles quotes; C++ escapes them. The .rc texts are
  # narrow: windres converts those with the code page, but takes the UTF-8
  # bytes of L"..." texts one by one.
  string(REPLACE "\"" "\"\"" rctext "${text}")
  string(REPLACE "\"" "\\\"" ctext "${text}")
  string(APPEND rc "    ${num}, \"${rctext}\"\n")
  string(APPEND inc "{${num}, u\"${ctext}\"},\n")
endforeach()
string(APPEND rc "END\n")
file(WRITE "${OUT_RC}.tmp" "${rc}")
file(WRITE "${OUT_INC}.tmp" "${inc}")
file(COPY_FILE "${OUT_RC}.tmp" "${OUT_RC}" ONLY_IF_DIFFERENT)
file(COPY_FILE "${OUT_INC}.tmp" "${OUT_INC}" ONLY_IF_DIFFERENT)

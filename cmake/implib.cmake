# Writes the two import libraries of morvix32w.dll from its .def file:
#   libmorvix32w.dll.a  for the GNU linker (mingw-w64 dlltool)
#   morvix32w.lib       in the Microsoft format (llvm-dlltool), for link.exe and lld-link
# On 32-bit Windows the exports are stdcall: a host's compiler asks for
# _Run_Macro@32 while the DLL exports Run_Macro. The decorated names are
# taken from the compiled layers, so the libraries map each decorated name
# to its undecorated export (dlltool --kill-at).
#
# Variables: DEF, DLL_NAME, OUT_DIR, ARCH (x64|x86), NM, DLLTOOL, LLVM_DLLTOOL,
# ARCHIVES (the layers' static libraries, ;-separated).
cmake_minimum_required(VERSION 3.25)

file(STRINGS ${DEF} def_lines)
set(names)
set(in_exports FALSE)
foreach(line IN LISTS def_lines)
  string(STRIP "${line}" line)
  if(line STREQUAL "EXPORTS")
    set(in_exports TRUE)
  elseif(in_exports AND line MATCHES "^([A-Za-z_][A-Za-z0-9_]*)")
    list(APPEND names ${CMAKE_MATCH_1})
  endif()
endforeach()
if(NOT names)
  message(FATAL_ERROR "${DEF} exports nothing")
endif()

set(def_text "LIBRARY ${DLL_NAME}\nEXPORTS\n")
if(ARCH STREQUAL "x86")
  execute_process(COMMAND ${NM} -g --defined-only ${ARCHIVES}
                  OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
  foreach(name IN LISTS names)
    if(symbols MATCHES " T _${name}@([0-9]+)\n")
      string(APPEND def_text "    ${name}@${CMAKE_MATCH_1}\n")
    else()
      message(FATAL_ERROR "no stdcall definition of the export ${name} in the layers")
    endif()
  endforeach()
  set(gnu_machine i386)
  set(llvm_machine i386)
  set(kill_at -k)
else()
  foreach(name IN LISTS names)
    string(APPEND def_text "    ${name}\n")
  endforeach()
  set(gnu_machine i386:x86-64)
  set(llvm_machine i386:x86-64)
  set(kill_at)
endif()

file(MAKE_DIRECTORY ${OUT_DIR})
set(import_def ${OUT_DIR}/morvix32w.import.def)
file(WRITE ${import_def} "${def_text}")
execute_process(COMMAND ${DLLTOOL} -m ${gnu_machine} ${kill_at} -d ${import_def} -D ${DLL_NAME}
                        -l ${OUT_DIR}/libmorvix32w.dll.a COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${LLVM_DLLTOOL} -m ${llvm_machine} ${kill_at} -d ${import_def} -D ${DLL_NAME}
                        -l ${OUT_DIR}/morvix32w.lib COMMAND_ERROR_IS_FATAL ANY)

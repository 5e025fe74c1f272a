# Morvix package: find_package(Morvix) gives the imported target Morvix::morvix
# (morvix32w.dll, its import library and morvix.h) for the architecture the
# host's compiler targets, and these variables:
#   Morvix_DLL    the DLL a host ships beside its executable
#   Morvix_MXRUN  mxrun.exe (64-bit packages), for running and checking macros
# Microsoft-style compilers (cl, clang-cl, clang for *-windows-msvc) link
# morvix32w.lib; the GNU toolchain links libmorvix32w.dll.a.
get_filename_component(_morvix_root "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(_morvix_arch x64)
elseif(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(_morvix_arch x86)
else()
  set(Morvix_FOUND FALSE)
  set(Morvix_NOT_FOUND_MESSAGE "Morvix needs a C or C++ compiler enabled before find_package(Morvix)")
  return()
endif()

if(MSVC OR CMAKE_C_SIMULATE_ID STREQUAL "MSVC" OR CMAKE_CXX_SIMULATE_ID STREQUAL "MSVC")
  set(_morvix_implib "${_morvix_root}/lib/${_morvix_arch}/morvix32w.lib")
else()
  set(_morvix_implib "${_morvix_root}/lib/${_morvix_arch}/libmorvix32w.dll.a")
endif()
set(_morvix_dll "${_morvix_root}/bin/${_morvix_arch}/morvix32w.dll")

foreach(_morvix_file "${_morvix_dll}" "${_morvix_implib}" "${_morvix_root}/include/morvix.h")
  if(NOT EXISTS "${_morvix_file}")
    set(Morvix_FOUND FALSE)
    set(Morvix_NOT_FOUND_MESSAGE "this Morvix package has no ${_morvix_arch} build (${_morvix_file} is missing)")
    return()
  endif()
endforeach()

if(NOT TARGET Morvix::morvix)
  add_library(Morvix::morvix SHARED IMPORTED)
  set_target_properties(Morvix::morvix PROPERTIES
    IMPORTED_LOCATION "${_morvix_dll}"
    IMPORTED_IMPLIB "${_morvix_implib}"
    INTERFACE_INCLUDE_DIRECTORIES "${_morvix_root}/include")
endif()

set(Morvix_DLL "${_morvix_dll}")
if(EXISTS "${_morvix_root}/bin/${_morvix_arch}/mxrun.exe")
  set(Morvix_MXRUN "${_morvix_root}/bin/${_morvix_arch}/mxrun.exe")
endif()
set(Morvix_FOUND TRUE)

# The embedding kit of a Windows build: import libraries made from the .def
# file, and the install tree that `cmake --install` and `./mx dist` lay out:
#
#   include/morvix.h
#   bin/<arch>/morvix32w.dll, mxrun.exe (x64)
#   lib/<arch>/libmorvix32w.dll.a, morvix32w.lib
#   lib/cmake/Morvix/MorvixConfig.cmake, MorvixConfigVersion.cmake
#   docs/, examples/, editors/, cmake/ (toolchain files for mingw-w64)
#
# <arch> is x64 or x86, so that the two builds install into one tree and a
# host's find_package(Morvix) picks the one its compiler targets.
include(CMakePackageConfigHelpers)

if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(MX_ARCH x64)
else()
  set(MX_ARCH x86)
endif()

# The linker's own import library would lack the decorated 32-bit names; it
# is kept under another name and the kit's libraries are made from the .def.
set_target_properties(morvix32w PROPERTIES IMPORT_PREFIX "" IMPORT_SUFFIX ".linker.a")
get_filename_component(_mx_cc_name ${CMAKE_C_COMPILER} NAME)
string(REGEX REPLACE "-gcc.*$" "-dlltool" _mx_dlltool_name ${_mx_cc_name})
find_program(MX_DLLTOOL NAMES ${_mx_dlltool_name} REQUIRED)
find_program(MX_LLVM_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14 REQUIRED)
set(MX_IMPLIB_DIR ${CMAKE_BINARY_DIR}/lib)
set(MX_IMPLIBS ${MX_IMPLIB_DIR}/libmorvix32w.dll.a ${MX_IMPLIB_DIR}/morvix32w.lib)
set(_mx_archives)
foreach(layer IN LISTS MX_LAYERS)
  list(APPEND _mx_archives $<TARGET_FILE:${layer}>)
endforeach()
add_custom_command(
  OUTPUT ${MX_IMPLIBS}
  COMMAND ${CMAKE_COMMAND} -DDEF=${CMAKE_SOURCE_DIR}/interface/morvix32w.def -DDLL_NAME=morvix32w.dll
          -DOUT_DIR=${MX_IMPLIB_DIR} -DARCH=${MX_ARCH} -DNM=${CMAKE_NM} -DDLLTOOL=${MX_DLLTOOL}
          -DLLVM_DLLTOOL=${MX_LLVM_DLLTOOL} "-DARCHIVES=${_mx_archives}"
          -P ${CMAKE_SOURCE_DIR}/cmake/implib.cmake
  DEPENDS ${CMAKE_SOURCE_DIR}/interface/morvix32w.def ${CMAKE_SOURCE_DIR}/cmake/implib.cmake
          morvix32w ${MX_LAYERS}
  COMMENT "Import libraries of morvix32w.dll (${MX_ARCH})"
  VERBATIM)
add_custom_target(morvix_implibs ALL DEPENDS ${MX_IMPLIBS})

install(FILES $<TARGET_FILE:morvix32w> DESTINATION bin/${MX_ARCH})
if(TARGET mxrun)
  install(PROGRAMS $<TARGET_FILE:mxrun> DESTINATION bin/${MX_ARCH})
endif()
install(FILES ${MX_IMPLIBS} DESTINATION lib/${MX_ARCH})
install(FILES ${CMAKE_SOURCE_DIR}/include/morvix.h DESTINATION include)

# The package: one config for both architectures; the version file says
# nothing about the pointer size because the config chooses the build.
write_basic_package_version_file(${CMAKE_BINARY_DIR}/MorvixConfigVersion.cmake
                                 VERSION ${MORVIX_VERSION} COMPATIBILITY SameMajorVersion
                                 ARCH_INDEPENDENT)
install(FILES ${CMAKE_SOURCE_DIR}/cmake/package/MorvixConfig.cmake
              ${CMAKE_BINARY_DIR}/MorvixConfigVersion.cmake
        DESTINATION lib/cmake/Morvix)

install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/ DESTINATION docs)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/examples/ DESTINATION examples)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/editors/ DESTINATION editors OPTIONAL)
install(FILES ${CMAKE_SOURCE_DIR}/cmake/mingw-x86_64.cmake ${CMAKE_SOURCE_DIR}/cmake/mingw-i686.cmake
        DESTINATION cmake)
install(FILES ${CMAKE_SOURCE_DIR}/README.md DESTINATION .)

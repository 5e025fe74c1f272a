# The version has one home, the four MORVIX_VERSION_* lines of include/morvix.h;
# the project, the DLL's version resource and the download's name read it
# from there. Sets MORVIX_VERSION ("MAJOR.MINOR.PATCH.BUILD").
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/../include/morvix.h _mx_version_lines
     REGEX "^#define MORVIX_VERSION_(MAJOR|MINOR|PATCH|BUILD) [0-9]+$")
set(MORVIX_VERSION)
foreach(_mx_part MAJOR MINOR PATCH BUILD)
  set(_mx_value)
  foreach(_mx_line IN LISTS _mx_version_lines)
    if(_mx_line MATCHES "^#define MORVIX_VERSION_${_mx_part} ([0-9]+)$")
      set(_mx_value ${CMAKE_MATCH_1})
    endif()
  endforeach()
  if(_mx_value STREQUAL "")
    message(FATAL_ERROR "include/morvix.h has no MORVIX_VERSION_${_mx_part}")
  endif()
  list(APPEND MORVIX_VERSION ${_mx_value})
endforeach()
list(JOIN MORVIX_VERSION "." MORVIX_VERSION)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/../include/morvix.h)

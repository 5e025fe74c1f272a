# The layer check: fails when a source includes a header of a higher layer
# or of a sibling subsystem. Run by ctest as
#   cmake -DROOT=<source dir> -P tests/layers.cmake
#
# Ranks, lowest first; a file may include its own folder and lower ranks.
#   0 base   1 platform   2 helperlib   3 engine
#   4 builtins xml desktop dialogs dde odbc report (siblings)   5 interface
# platform/posix and platform/win32 may include platform/*.h but not each other.
set(MX_RANK_base 0)
set(MX_RANK_platform 1)
set(MX_RANK_helperlib 2)
set(MX_RANK_engine 3)
foreach(sub builtins xml desktop dialogs dde odbc report)
  set(MX_RANK_${sub} 4)
endforeach()
set(MX_RANK_interface 5)
set(MX_LAYER_DIRS base platform helperlib engine builtins xml desktop dialogs dde odbc report interface)

set(violations 0)
foreach(layer IN LISTS MX_LAYER_DIRS)
  file(GLOB_RECURSE sources ${ROOT}/${layer}/*.h ${ROOT}/${layer}/*.cpp)
  foreach(source IN LISTS sources)
    file(RELATIVE_PATH rel ${ROOT} ${source})
    file(STRINGS ${source} includes REGEX "^[ \t]*#[ \t]*include[ \t]+\"")
    foreach(line IN LISTS includes)
      string(REGEX REPLACE "^[ \t]*#[ \t]*include[ \t]+\"([^\"]+)\".*" "\\1" target "${line}")
      string(REGEX MATCH "^[^/]+" top "${target}")
      if(NOT DEFINED MX_RANK_${top})
        continue()  # generated headers, the public header, the C++ library
      endif()
      set(bad "")
      if(top STREQUAL layer)
        # Inside platform, posix/ and win32/ keep to themselves.
        if(layer STREQUAL "platform")
          string(REGEX MATCH "^platform/(posix|win32)/" own "${rel}")
          string(REGEX MATCH "^platform/(posix|win32)/" other "${target}")
          if(other AND NOT other STREQUAL own)
            set(bad "the other platform")
          endif()
        endif()
      elseif(MX_RANK_${top} GREATER_EQUAL MX_RANK_${layer})
        if(MX_RANK_${top} EQUAL MX_RANK_${layer})
          set(bad "a sibling subsystem")
        else()
          set(bad "a higher layer")
        endif()
      endif()
      if(bad)
        message(SEND_ERROR "${rel}: includes ${target}, ${bad}")
        math(EXPR violations "${violations} + 1")
      endif()
    endforeach()
  endforeach()
endforeach()
if(violations GREATER 0)
  message(FATAL_ERROR "${violations} include(s) against the layer order")
endif()
message(STATUS "layers: every include points downward")

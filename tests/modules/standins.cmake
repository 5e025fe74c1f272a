# The stand-in run-time modules, one directory per variant below OUT:
#   report/full, report/no-<entry> (each entry point missing in turn),
#   report/open-null; form/full, form/no-<entry>, form/open-fails.
# Windows: PRTENG32W.DLL and MSKDLG32.DLL; Linux: prteng32w.so and
# mskdlg32.so (the names the library maps them to). All of them are
# collected in the target mx_standins.
set(MX_STANDIN_SRC ${CMAKE_CURRENT_LIST_DIR})
add_custom_target(mx_standins)

function(mx_standin kind variant source module)
  set(target standin_${kind}_${variant})
  add_library(${target} SHARED ${MX_STANDIN_SRC}/${source})
  target_compile_definitions(${target} PRIVATE ${ARGN})
  set(dir ${MX_STANDIN_OUT}/${kind}/${variant})
  if(WIN32)
    set_target_properties(${target} PROPERTIES PREFIX "" OUTPUT_NAME ${module} SUFFIX ".DLL"
                          RUNTIME_OUTPUT_DIRECTORY ${dir} LIBRARY_OUTPUT_DIRECTORY ${dir})
    target_link_options(${target} PRIVATE -static-libgcc)
    target_link_libraries(${target} PRIVATE gdi32 user32)
  else()
    string(TOLOWER ${module} lower)
    set_target_properties(${target} PROPERTIES PREFIX "" OUTPUT_NAME ${lower} SUFFIX ".so"
                          LIBRARY_OUTPUT_DIRECTORY ${dir} C_VISIBILITY_PRESET hidden)
  endif()
  add_dependencies(mx_standins ${target})
endfunction()

set(MX_REPORT_ENTRIES Rep_Preview_File Rep_Print_File Rep_Open_Expanded Rep_SetProperty
    Rep_DeclarePrinterOutput Rep_Print_Report Rep_Close)
set(MX_FORM_ENTRIES Form_Open Form_MakeUntitled Form_SetWorkModeExt Form_PerformBeginMacro
    Form_SetHwndNotify Form_SetChangeFlag Form_LoadFromProfileExtended Form_SaveToProfileExtended
    Form_DataAccess)

mx_standin(report full report_standin.c PRTENG32W)
mx_standin(report open-null report_standin.c PRTENG32W STANDIN_OPEN_NULL)
foreach(entry IN LISTS MX_REPORT_ENTRIES)
  mx_standin(report no-${entry} report_standin.c PRTENG32W STANDIN_OMIT_${entry})
endforeach()
mx_standin(form full form_standin.c MSKDLG32)
mx_standin(form open-fails form_standin.c MSKDLG32 STANDIN_OPEN_FAILS)
foreach(entry IN LISTS MX_FORM_ENTRIES)
  mx_standin(form no-${entry} form_standin.c MSKDLG32 STANDIN_OMIT_${entry})
endforeach()

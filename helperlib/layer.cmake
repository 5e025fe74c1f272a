# Mail travels over Winsock on Windows; the file and folder choosers need
# the common dialogs, the shell and COM; printers are asked through the print
# spooler. On Linux run-time modules are loaded with the dynamic loader.
if(WIN32)
  target_link_libraries(mx_helperlib PUBLIC ws2_32 comctl32 shell32 ole32 comdlg32 winspool)
else()
  target_link_libraries(mx_helperlib PUBLIC ${CMAKE_DL_LIBS})
endif()

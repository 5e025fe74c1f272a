# Mail travels over Winsock on Windows; the file and folder choosers need
# the common dialogs, the shell and COM.
if(WIN32)
  target_link_libraries(mx_helperlib PUBLIC ws2_32 comctl32 shell32 ole32 comdlg32)
endif()

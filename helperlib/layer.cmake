if(WIN32)
  target_link_libraries(mx_helperlib PUBLIC comctl32 shell32 ole32 comdlg32)
endif()

if(WIN32)
  target_link_libraries(mx_dialogs PUBLIC comctl32)
endif()

# Mail travels over Winsock on Windows.
if(WIN32)
  target_link_libraries(mx_helperlib PUBLIC ws2_32)
endif()

# Mail travels over Winsock on Windows; run-time modules are loaded through
# the platform's loader, and the print spooler answers for printers.
if(WIN32)
  target_link_libraries(mx_helperlib PUBLIC ws2_32 winspool)
else()
  target_link_libraries(mx_helperlib PUBLIC ${CMAKE_DL_LIBS})
endif()

# The helper library loads run-time modules and asks the print spooler.
if(WIN32)
  target_link_libraries(mx_helperlib PUBLIC winspool)
else()
  target_link_libraries(mx_helperlib PUBLIC ${CMAKE_DL_LIBS})
endif()

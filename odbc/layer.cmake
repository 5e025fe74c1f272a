# The ODBC driver manager: unixODBC natively, odbc32 on Windows.
if(WIN32)
  target_link_libraries(mx_odbc PUBLIC odbc32)
else()
  target_link_libraries(mx_odbc PUBLIC odbc)
endif()

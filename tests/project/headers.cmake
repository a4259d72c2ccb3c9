# Every header that a plugin may meet, compiled alone and twice in a row as C++14.

file(GLOB public_headers CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/include/kite/*.h"
    "${CMAKE_SOURCE_DIR}/host/*/include/*/*.h")

set(sources)
foreach(header IN LISTS public_headers)
    string(REGEX REPLACE "^.*/include/" "" name "${header}")
    set(source "${CMAKE_CURRENT_BINARY_DIR}/alone/${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"${name}\"\n#include \"${name}\"\n")
    list(APPEND sources "${source}")
endforeach()

add_library(headersAlone OBJECT ${sources})
set_target_properties(headersAlone PROPERTIES CXX_STANDARD 14 CXX_STANDARD_REQUIRED ON AUTOMOC OFF)
target_compile_options(headersAlone PRIVATE -Wall -Wextra -Wpedantic -Werror)
file(GLOB host_includes "${CMAKE_SOURCE_DIR}/host/*/include")
target_include_directories(headersAlone PRIVATE "${CMAKE_SOURCE_DIR}/include" ${host_includes})
target_link_libraries(headersAlone PRIVATE Qt5::Widgets)

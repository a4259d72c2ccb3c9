# libkite.so.1 from plugin/, interface/, log/ and instruction/.

file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/include/kite/*.h"
    "${CMAKE_SOURCE_DIR}/plugin/*.cpp" "${CMAKE_SOURCE_DIR}/plugin/*.h"
    "${CMAKE_SOURCE_DIR}/interface/*.cpp" "${CMAKE_SOURCE_DIR}/interface/*.h"
    "${CMAKE_SOURCE_DIR}/log/*.cpp" "${CMAKE_SOURCE_DIR}/log/*.h"
    "${CMAKE_SOURCE_DIR}/instruction/*.cpp" "${CMAKE_SOURCE_DIR}/instruction/*.h")

kite_shared_library(kite ${sources})
add_library(Kite::kite ALIAS kite)
target_include_directories(kite PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/include> $<INSTALL_INTERFACE:include>
    PRIVATE "${CMAKE_SOURCE_DIR}")
target_link_libraries(kite PUBLIC host::briskCore host::briskTarp host::helm host::briskx Qt5::Core Qt5::Gui Qt5::Widgets)
# A pendant has Qt 5.12: a newer mark of the Qt it was built with would keep its loader from taking the library.
target_compile_definitions(kite PRIVATE QT_NO_VERSION_TAGGING)

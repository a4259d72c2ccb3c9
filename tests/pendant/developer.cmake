# The developer dock.

file(GLOB developerTests CONFIGURE_DEPENDS tst_developer_*.cpp)
foreach(test IN LISTS developerTests)
    kite_test("${test}" LIBRARIES pendantCore)
    get_filename_component(name "${test}" NAME_WE)
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests/support")
endforeach()

# The frame, the pages, the look and the application object.

file(GLOB frameTests CONFIGURE_DEPENDS tst_frame_*.cpp tst_app_*.cpp tst_style_*.cpp tst_pages_*.cpp)
foreach(test IN LISTS frameTests)
    kite_test("${test}" LIBRARIES pendantCore)
endforeach()
target_compile_definitions(tst_app_language PRIVATE
    "PENDANT_TRANSLATIONS=\"${CMAKE_SOURCE_DIR}/pendant/translations\"")
# An exception that an event handler throws cuts through frames of Qt, which is built without exceptions: the guards that
# these hold stay behind, a few bytes each.
set_property(TEST tst_app_application APPEND PROPERTY ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0")

# The drawn robot: its geometry, camera and picture without widgets, and the page that shows it.

foreach(test IN ITEMS chain camera gestures motion)
    kite_test(view/tst_view_${test}.cpp LIBRARIES pendantView virtualController)
endforeach()
foreach(test IN ITEMS solids picture)
    kite_test(view/tst_view_${test}.cpp SOURCES view/viewfixture.h LIBRARIES pendantView)
endforeach()
kite_test(view/tst_view_page.cpp SOURCES view/robotbench.h LIBRARIES kite pendantCore pendantTest)
target_include_directories(tst_view_page PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")

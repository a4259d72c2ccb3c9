# The program editor's page, with instructions of real plugins.

foreach(test IN ITEMS gripper faults lines saving picker)
    kite_test(editor/tst_editor_${test}.cpp SOURCES editor/editorbench.h LIBRARIES pendantCore pendantTest
        PLUGINS gripper fixture_odd)
    target_include_directories(tst_editor_${test} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
endforeach()

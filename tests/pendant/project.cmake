# The project and its likeness in the controller.

foreach(test IN ITEMS tst_project_mirror.cpp tst_project_reload.cpp tst_project_frame.cpp)
    kite_test(${test} LIBRARIES pendantProject fakeLink)
endforeach()
kite_test(tst_project_deleting.cpp LIBRARIES kite pendantTest pendantProject)

foreach(test IN ITEMS tst_jog_page.cpp tst_jog_keys.cpp tst_records_variables.cpp tst_records_points.cpp)
    kite_test(${test} LIBRARIES pendantCore pendantTest)
endforeach()
kite_test(tst_project_disk.cpp LIBRARIES kite pendantTest pendantProgram pendantState)
kite_test(tst_projects_page.cpp LIBRARIES kite pendantCore pendantTest)

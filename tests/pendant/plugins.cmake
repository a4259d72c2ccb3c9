# Loading plugins, driving them, the tour.

set(fixtures_that_throw fixture_throwsconstructor fixture_throwsinit fixture_throwsafterinit fixture_throwsrender
    fixture_throwsidle fixture_throwsdetach fixture_throwsnumber)

kite_test(tst_loader_elf.cpp LIBRARIES pendantPlugins PLUGINS fixture_pair)
kite_test(tst_loader_files.cpp LIBRARIES kite pendantTest
    PLUGINS fixture_pair fixture_taken fixture_nothing fixture_unresolved fixture_loading fixture_twice)
# Stacks through Qt are whole only so, and one suppression is told by what stands above Qt.
set_tests_properties(tst_loader_files PROPERTIES ENVIRONMENT_MODIFICATION "ASAN_OPTIONS=set:fast_unwind_on_malloc=0")
kite_test(tst_session.cpp LIBRARIES kite pendantTest)
kite_test(tst_session_throwing.cpp LIBRARIES kite pendantTest PLUGINS ${fixtures_that_throw} fixture_pair)
kite_test(tst_session_deleting.cpp LIBRARIES kite pendantTest PLUGINS fixture_deleting)

kite_test(tst_plugins_thrown.cpp LIBRARIES kite pendantTest)

set(tour "${CMAKE_SOURCE_DIR}/pendant/tour")
kite_test(tst_tour_transcript.cpp LIBRARIES pendantPlugins
    SOURCES "${tour}/markdown.cpp" "${tour}/tourname.cpp" "${tour}/transcript.cpp" "${tour}/transcript.h")
kite_test(tst_tour_press.cpp LIBRARIES pendantPlugins
    SOURCES "${tour}/press.cpp" "${tour}/tourbuttons.cpp")

# The whole pendant as people start it.
if(TARGET kite-pendant)
    kite_test(tst_tour.cpp LIBRARIES Qt5::Gui LABELS native
        PLUGINS gripper fixture_pair fixture_touring fixture_throwsinit fixture_throwsidle fixture_throwshandler
            fixture_crashing fixture_nothing)
    add_dependencies(tst_tour kite-pendant)
    target_compile_definitions(tst_tour PRIVATE PENDANT="$<TARGET_FILE:kite-pendant>")
endif()

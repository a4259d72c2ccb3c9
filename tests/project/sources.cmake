# What the sources, the pages and the installed package have to keep.

include(headers.cmake)

kite_test(tst_includerules.cpp SOURCES includerules.cpp includetarget.cpp LIBRARIES Qt5::Core)
target_compile_definitions(tst_includerules PRIVATE KITE_SOURCE_DIR="${CMAKE_SOURCE_DIR}")

kite_test(tst_architecture.cpp SOURCES includerules.cpp includetarget.cpp LIBRARIES Qt5::Core)
target_compile_definitions(tst_architecture PRIVATE KITE_SOURCE_DIR="${CMAKE_SOURCE_DIR}")

kite_test(tst_publicheaders.cpp SOURCES includetarget.cpp LIBRARIES Qt5::Core)
target_compile_definitions(tst_publicheaders PRIVATE KITE_SOURCE_DIR="${CMAKE_SOURCE_DIR}")

project_check(sources_are_formatted "${tools}/check-format")

kite_test(tst_docs.cpp LIBRARIES Qt5::Core)
target_compile_definitions(tst_docs PRIVATE KITE_SOURCE_DIR="${CMAKE_SOURCE_DIR}")

project_check(a_new_plugin_is_made_from_the_example "${CMAKE_CURRENT_SOURCE_DIR}/new_plugin.sh" "${CMAKE_SOURCE_DIR}")

# Looks into the test programs, which are all there when tests run.
kite_test(tst_operations.cpp LIBRARIES Qt5::Core)
target_compile_definitions(tst_operations PRIVATE KITE_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
    TEST_PROGRAM_DIR="${CMAKE_BINARY_DIR}/tests")

# Who links a library with sanitizers needs them too; nobody installs such a one.
if(NOT KITE_SANITIZE AND NOT KITE_COVERAGE)
    project_check(a_plugin_outside_builds_against_the_installed_library "${CMAKE_CURRENT_SOURCE_DIR}/consumer.sh"
        "${CMAKE_BINARY_DIR}" "${CMAKE_SOURCE_DIR}")
endif()

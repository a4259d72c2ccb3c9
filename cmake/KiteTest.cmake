find_package(Qt5 REQUIRED COMPONENTS Test)

set(suppressions "${CMAKE_SOURCE_DIR}/tests/project")
set(sanitizer_options "LSAN_OPTIONS=suppressions=${suppressions}/lsan.supp:print_suppressions=0"
    "TSAN_OPTIONS=suppressions=${suppressions}/tsan.supp" "UBSAN_OPTIONS=print_stacktrace=1")

# kite_test(tst_name.cpp [SOURCES file...] [LIBRARIES target...] [PLUGINS target...] [LABELS label...])
#
# One test program. It runs offscreen, in an empty folder of its own, and may run beside any other. PLUGINS are built
# before it; the test finds one by the macro PLUGIN_<target> (a path). Cases that make no sense under qemu-user carry
# the label "native". Built for Arm, examples have no tests, and a test of a plugin that is not built there is left out.
function(kite_test file)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES;PLUGINS;LABELS")
    if(CMAKE_CROSSCOMPILING AND CMAKE_CURRENT_SOURCE_DIR MATCHES "^${CMAKE_SOURCE_DIR}/examples/")
        return()
    endif()
    foreach(plugin IN LISTS arg_PLUGINS)
        if(CMAKE_CROSSCOMPILING AND NOT TARGET ${plugin})
            return()
        endif()
    endforeach()
    get_filename_component(name ${file} NAME_WE)
    add_executable(${name} ${file} ${arg_SOURCES})
    kite_own_target(${name})
    target_link_libraries(${name} PRIVATE Qt5::Test ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    foreach(plugin IN LISTS arg_PLUGINS)
        add_dependencies(${name} ${plugin})
        target_compile_definitions(${name} PRIVATE "PLUGIN_${plugin}=\"$<TARGET_FILE:${plugin}>\"")
    endforeach()
    set(folder "${CMAKE_BINARY_DIR}/tests/run/${name}")
    file(MAKE_DIRECTORY "${folder}")
    add_test(NAME ${name} COMMAND ${name} WORKING_DIRECTORY "${folder}")
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_LOGGING_TO_CONSOLE=1;LC_ALL=C.UTF-8;${sanitizer_options}"
        LABELS "${arg_LABELS}")
endfunction()

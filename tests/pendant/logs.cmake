# Log files, and what goes to the console.

foreach(test IN ITEMS tst_log_files.cpp tst_log_lines.cpp tst_log_text.cpp tst_log_search.cpp tst_log_seek.cpp
        tst_log_feed.cpp)
    kite_test(logs/${test} LIBRARIES pendantLogs)
endforeach()

add_executable(console_speaker logs/console_speaker.cpp)
kite_own_target(console_speaker)
target_link_libraries(console_speaker PRIVATE pendantLogs)
kite_test(logs/tst_console_colours.cpp LIBRARIES pendantLogs)
add_dependencies(tst_console_colours console_speaker)
target_compile_definitions(tst_console_colours PRIVATE SPEAKER="$<TARGET_FILE:console_speaker>")

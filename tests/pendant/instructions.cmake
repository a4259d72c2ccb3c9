# The pendant's own instructions.

foreach(test IN ITEMS lines roundtrip)
    kite_test(instructions/tst_instructions_${test}.cpp LIBRARIES pendantCore)
endforeach()
foreach(test IN ITEMS registry widgets)
    kite_test(instructions/tst_instructions_${test}.cpp LIBRARIES pendantCore pendantTest)
    target_include_directories(tst_instructions_${test} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
endforeach()

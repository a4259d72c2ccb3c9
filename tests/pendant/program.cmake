# The robot program behind the program editor.

foreach(test IN ITEMS lines history types groups file failing place)
    kite_test(program/tst_program_${test}.cpp LIBRARIES pendantProgram pendantTest)
endforeach()
foreach(test IN ITEMS store unsaved)
    kite_test(program/tst_program_${test}.cpp SOURCES program/programstorefixture.h LIBRARIES pendantProgram pendantTest)
endforeach()

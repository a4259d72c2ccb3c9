# What the controller tells of itself, in the data tree, and the page that shows it.

kite_test(tst_state_writechanges.cpp LIBRARIES pendantState)
kite_test(tst_state_mirror.cpp LIBRARIES kite pendantTest)
kite_test(tst_io_page.cpp LIBRARIES pendantCore pendantTest)
kite_test(tst_io_registers.cpp LIBRARIES pendantCore pendantTest)

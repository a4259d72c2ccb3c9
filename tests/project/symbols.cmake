# What libkite.so.1 takes from Qt and what it offers; and that the tools which check it can say no. Sanitizers and
# coverage bring symbols of their own.
if(KITE_SANITIZE OR KITE_COVERAGE)
    return()
endif()

function(symbol_fixture name)
    add_library(${name} SHARED fixtures/${name}.cpp)
    set_target_properties(${name} PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests/fixtures")
    target_link_libraries(${name} PRIVATE Qt5::Core)
    target_link_options(${name} PRIVATE -Wl,--no-undefined)
    target_compile_definitions(${name} PRIVATE QT_NO_VERSION_TAGGING)
    kite_own_target(${name})
endfunction()

foreach(name IN ITEMS toonew tagged exporting)
    symbol_fixture(${name})
endforeach()

project_check(kite_takes_nothing_newer_than_qt_5_12 "${tools}/check-imports" $<TARGET_FILE:kite>)
project_check(a_plugin_takes_nothing_newer_than_qt_5_12 "${tools}/check-imports" $<TARGET_FILE:weld>)
project_check(an_import_newer_than_qt_5_12_is_refused
    "${expect_refusal}" "isValidUtf16(QStringView): since Qt 5.15" "${tools}/check-imports" $<TARGET_FILE:toonew>)
project_check(the_mark_of_a_newer_qt_is_refused
    "${expect_refusal}" "qt_version_tag: marked Qt_5.15" "${tools}/check-imports" $<TARGET_FILE:tagged>)

project_check(kite_exports_what_is_listed
    "${tools}/check-exports" $<TARGET_FILE:kite> "${CMAKE_CURRENT_SOURCE_DIR}/kite.symbols")
set(exporting "${tools}/check-exports" $<TARGET_FILE:exporting> "${CMAKE_CURRENT_SOURCE_DIR}/fixtures/exporting.symbols")
project_check(an_unlisted_export_is_refused "${expect_refusal}" "kite::unlisted()" ${exporting})
project_check(a_listed_export_that_is_gone_is_refused "${expect_refusal}" "kite::gone()" ${exporting})

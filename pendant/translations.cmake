# Compiles translations/*.ts and embeds them under ":/pendant/translations". lrelease is a tool of the machine that
# builds, so it is looked for as a program: Qt's CMake package of another architecture would name one that cannot run.

find_program(KITE_LRELEASE NAMES lrelease lrelease-qt5 PATHS /usr/lib/qt5/bin REQUIRED)

set(translations "${CMAKE_CURRENT_BINARY_DIR}/translations")
file(MAKE_DIRECTORY "${translations}")
set(entries "")
set(compiled "")
foreach(language IN ITEMS de zh_CN)
    set(ts "${CMAKE_CURRENT_SOURCE_DIR}/translations/pendant_${language}.ts")
    set(qm "${translations}/pendant_${language}.qm")
    add_custom_command(OUTPUT "${qm}" COMMAND ${KITE_LRELEASE} -silent "${ts}" -qm "${qm}" DEPENDS "${ts}" VERBATIM)
    list(APPEND compiled "${qm}")
    string(APPEND entries "<file>pendant_${language}.qm</file>")
endforeach()
file(WRITE "${translations}/translations.qrc.new"
    "<RCC><qresource prefix=\"/pendant/translations\">${entries}</qresource></RCC>\n")
configure_file("${translations}/translations.qrc.new" "${translations}/translations.qrc" COPYONLY)
target_sources(pendantCore PRIVATE "${translations}/translations.qrc" ${compiled})

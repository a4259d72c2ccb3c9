# Every plugin that stands where the pendant finds it.
add_custom_target(plugins)

# kite_add_plugin(NAME SOURCES file...)
#
# Builds the plugin NAME as a shared object from the sources, against Kite and Qt, and leaves it where the pendant finds
# it. A file NAME.qrc or resources.qrc among the sources is compiled in.
function(kite_add_plugin name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "OUTPUT_DIRECTORY" "SOURCES")
    if(NOT arg_SOURCES)
        message(FATAL_ERROR "kite_add_plugin(${name}): name the plugin's sources after SOURCES.")
    endif()
    add_library(${name} MODULE ${arg_SOURCES})
    if(NOT arg_OUTPUT_DIRECTORY)
        set(arg_OUTPUT_DIRECTORY "${KITE_PLUGIN_DIR}")
        add_dependencies(plugins ${name})
    endif()
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON AUTORCC ON
        CXX_STANDARD 17 CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
        LIBRARY_OUTPUT_DIRECTORY "${arg_OUTPUT_DIRECTORY}")
    target_link_libraries(${name} PRIVATE Kite::kite)
    # A pendant has Qt 5.12: with the mark of a newer Qt its loader would not take the plugin.
    target_compile_definitions(${name} PRIVATE QT_NO_VERSION_TAGGING)
    target_link_options(${name} PRIVATE -Wl,--no-undefined)
endfunction()

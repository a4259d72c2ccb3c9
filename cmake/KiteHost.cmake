# The host's four libraries, as the targets host::briskCore, host::briskTarp, host::helm and host::briskx.

if(KITE_HOST STREQUAL "stand-in")
    add_subdirectory(host)
elseif(KITE_HOST STREQUAL "system")
    foreach(name IN ITEMS briskCore briskTarp helm briskx)
        find_library(KITE_HOST_${name} NAMES lib${name}.so.1 PATHS "${KITE_HOST_LIBRARY_DIR}" NO_DEFAULT_PATH REQUIRED)
        add_library(host::${name} SHARED IMPORTED)
        set_target_properties(host::${name} PROPERTIES
            IMPORTED_LOCATION "${KITE_HOST_${name}}"
            INTERFACE_INCLUDE_DIRECTORIES "${KITE_HOST_INCLUDE_DIRS}")
    endforeach()
else()
    message(FATAL_ERROR "KITE_HOST is '${KITE_HOST}'; it must be 'stand-in' or 'system'.")
endif()

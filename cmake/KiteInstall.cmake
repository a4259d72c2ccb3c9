# What `cmake --install` lays down: the library and its headers, the host's interface, the pendant, and the package by
# which a plugin's project finds them with find_package(Kite).

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Kite")
set(installed kite)
if(KITE_HOST STREQUAL "stand-in")
    list(APPEND installed briskCore briskTarp helm briskx)
endif()

set_target_properties(${installed} PROPERTIES INSTALL_RPATH "\$ORIGIN")
install(TARGETS ${installed} EXPORT KiteTargets LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(EXPORT KiteTargets NAMESPACE Kite:: DESTINATION "${package_dir}")

install(DIRECTORY "${CMAKE_SOURCE_DIR}/include/kite" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
if(KITE_HOST STREQUAL "stand-in")
    foreach(name IN ITEMS briskCore briskTarp helm briskx)
        install(DIRECTORY "${CMAKE_SOURCE_DIR}/host/${name}/include/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/kite-host")
    endforeach()
endif()

configure_package_config_file("${CMAKE_SOURCE_DIR}/cmake/KiteConfig.cmake.in"
    "${CMAKE_BINARY_DIR}/package/KiteConfig.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${CMAKE_BINARY_DIR}/package/KiteConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_BINARY_DIR}/package/KiteConfig.cmake" "${CMAKE_BINARY_DIR}/package/KiteConfigVersion.cmake"
    "${CMAKE_SOURCE_DIR}/cmake/KitePlugin.cmake" "${CMAKE_SOURCE_DIR}/cmake/KiteHost.cmake"
    DESTINATION "${package_dir}")

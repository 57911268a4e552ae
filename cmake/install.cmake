# cmake --install: headers, both libraries (never stripped: the internal names are for debuggers and profilers), the
# CMake package and the pkg-config file.

include(CMakePackageConfigHelpers)

# The generated header belongs to the library just built; a test keeps include/zelm.h equal to it.
install(FILES ${ZELM_GENERATED_DIR}/zelm.h include/zelm_types.h include/zelcore.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS zelmp8 zelcore EXPORT zelm-targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zelm)
install(EXPORT zelm-targets FILE zelm-config.cmake NAMESPACE zelm:: DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zelm-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zelm-config-version.cmake DESTINATION ${package_dir})

# Relative to its own place, so that an installed tree can be moved.
file(RELATIVE_PATH ZELM_PC_TO_PREFIX
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" ZELM_PC_TO_PREFIX "${ZELM_PC_TO_PREFIX}")
configure_file(cmake/zelm.pc.in ${PROJECT_BINARY_DIR}/zelm.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zelm.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

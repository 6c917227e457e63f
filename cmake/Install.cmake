# The installed package: headers, library, tool, and the files by which clients find them. The
# components are the Debian packages of cmake/Packages.cmake.

include(CMakePackageConfigHelpers)
set(library_component libzel${PROJECT_VERSION_MAJOR})
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zel)

install(TARGETS zel EXPORT zelTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT ${library_component} NAMELINK_COMPONENT libzel-dev
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT libzel-dev
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${library_component})
if(WIN32)
    install(FILES ${zel_runtime_dlls} DESTINATION ${CMAKE_INSTALL_BINDIR}
        COMPONENT ${library_component})
endif()
install(DIRECTORY include/zel DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT libzel-dev)
install(EXPORT zelTargets NAMESPACE zel:: DESTINATION ${package_dir} COMPONENT libzel-dev)

configure_package_config_file(cmake/zelConfig.cmake.in ${PROJECT_BINARY_DIR}/zelConfig.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zelConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zelConfig.cmake ${PROJECT_BINARY_DIR}/zelConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT libzel-dev)

# The prefix is told by the place of zel.pc itself, so an installed tree can be moved.
file(RELATIVE_PATH pc_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" pc_prefix ${pc_prefix})
configure_file(cmake/zel.pc.in ${PROJECT_BINARY_DIR}/zel.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zel.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT libzel-dev)

if(ZEL_BUILD_TOOLS)
    file(RELATIVE_PATH lib_from_bin /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(zel_tool PROPERTIES INSTALL_RPATH "$ORIGIN/${lib_from_bin}")
    install(TARGETS zel_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT zel-tools)
    # Packages have it compressed.
    install(FILES tools/zel.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT manual)
endif()

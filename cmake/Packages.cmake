# Three Debian packages, made by scripts/package or by cpack in a build folder: the library, what
# it takes to build against it, and the tool. What only they hold is installed by no other way.

set(package_library libzel${PROJECT_VERSION_MAJOR})
set(package_dev libzel-dev)
set(package_tools zel-tools)
set(packages ${package_library} ${package_dev} ${package_tools})
set(package_release 1)

find_program(GZIP_PROGRAM gzip REQUIRED)

# The same bytes in each build, so no name and no time go in.
function(zel_gzip from to)
    execute_process(COMMAND ${GZIP_PROGRAM} -9 -n -c ${from} OUTPUT_FILE ${to}
        COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${from})
endfunction()

set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(made ${PROJECT_BINARY_DIR}/packaging)
file(MAKE_DIRECTORY ${made})
zel_gzip(${packaging}/changelog ${made}/changelog.Debian.gz)
zel_gzip(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${made}/changelog.gz)
foreach(package IN LISTS packages)
    install(FILES ${packaging}/copyright ${made}/changelog.Debian.gz ${made}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package}
        COMPONENT ${package} EXCLUDE_FROM_ALL)
    install(FILES ${packaging}/${package}.overrides
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME ${package}
        COMPONENT ${package} EXCLUDE_FROM_ALL)
endforeach()

if(ZEL_BUILD_TOOLS)
    zel_gzip(${PROJECT_SOURCE_DIR}/tools/zel.1 ${made}/zel.1.gz)
    install(FILES ${made}/zel.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
        COMPONENT ${package_tools} EXCLUDE_FROM_ALL)
    # Its place in a desktop and in the shells is the same in /usr/local.
    set(share ${CMAKE_INSTALL_DATADIR})
    install(FILES packaging/zel.thumbnailer DESTINATION ${share}/thumbnailers
        COMPONENT ${package_tools})
    install(FILES packaging/zel.xml DESTINATION ${share}/mime/packages COMPONENT ${package_tools})
    install(FILES packaging/zel.bash DESTINATION ${share}/bash-completion/completions RENAME zel
        COMPONENT ${package_tools})
    install(FILES packaging/zel.zsh DESTINATION ${share}/zsh/vendor-completions RENAME _zel
        COMPONENT ${package_tools})
    install(FILES packaging/zel.fish DESTINATION ${share}/fish/vendor_completions.d
        COMPONENT ${package_tools})
else()
    list(REMOVE_ITEM packages ${package_tools})
endif()

# Programs that were linked with the library come to depend on its package by these, and the system
# learns that it is there.
set(same_version "(= ${PROJECT_VERSION}-${package_release})")
file(CONFIGURE OUTPUT ${made}/shlibs @ONLY
    CONTENT "libzel @PROJECT_VERSION_MAJOR@ @package_library@ (>= @PROJECT_VERSION@)\n")
file(CONFIGURE OUTPUT ${made}/triggers CONTENT "activate-noawait ldconfig\n")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zel)
set(CPACK_PACKAGE_VENDOR ZEL)
set(CPACK_PACKAGE_CONTACT "ZEL maintainers <maintainers@zel.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each has its own
set(CPACK_COMPONENTS_ALL ${packages})
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/packageFiles.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${package_release})
set(CPACK_DEBIAN_PACKAGE_SOURCE zel)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

# What stands in the control file of one package. What its programs depend on comes to that later.
macro(zel_package package section depends description)
    string(TOUPPER ${package} name)
    set(CPACK_DEBIAN_${name}_PACKAGE_NAME ${package})
    set(CPACK_DEBIAN_${name}_PACKAGE_SECTION ${section})
    set(CPACK_DEBIAN_${name}_PACKAGE_DEPENDS "${depends}")
    set(CPACK_DEBIAN_${name}_DESCRIPTION "scene documents in three dimensions - ${description}")
endmacro()

set(what "ZEL keeps scenes of meshes, materials, lights and views in documents,
which are XML files with packed blocks of geometry and pictures.")

zel_package(${package_library} libs "" "library
${what} The
library makes, loads, saves and merges them, and answers questions about
a file without loading it.")
set(CPACK_DEBIAN_${name}_PACKAGE_CONTROL_EXTRA
    ${packaging}/symbols ${made}/shlibs ${made}/triggers)

zel_package(${package_dev} libdevel "${package_library} ${same_version}" "headers
${what}

This package holds what it takes to build programs with the library:
the headers, and the files by which CMake and pkg-config find it.")

zel_package(${package_tools} graphics "${package_library} ${same_version}" "tool
${what} The
tool zel looks into them, checks, compares, merges and converts them.

File managers show the documents with their preview pictures.")

include(CPack)

# Run by cpack when the files of all packages lie in their folders, before they are packed.

set(staged ${CPACK_TEMPORARY_INSTALL_DIRECTORY})
find_program(STRIP strip REQUIRED)
find_program(SHLIBDEPS dpkg-shlibdeps REQUIRED)

# The Debian packages of the libraries that the file was linked with.
function(zel_dependencies file to)
    # The program wants to be called in a source package.
    file(WRITE ${CPACK_TEMPORARY_DIRECTORY}/debian/control "Source: zel\n\nPackage: zel\nArchitecture: any\n")
    file(GLOB libraries ${staged}/*/usr/lib/*)
    list(TRANSFORM libraries PREPEND -l)
    # Our own library is in no package yet: its dependency is told by hand.
    execute_process(COMMAND ${SHLIBDEPS} --ignore-missing-info ${libraries} -O -e${file}
        WORKING_DIRECTORY ${CPACK_TEMPORARY_DIRECTORY} RESULT_VARIABLE result
        OUTPUT_VARIABLE output ERROR_VARIABLE messages OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${messages}")
    endif()
    string(REPLACE "shlibs:Depends=" "" output "${output}")
    set(${to} "${output}" PARENT_SCOPE)
endfunction()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    file(GLOB_RECURSE binaries ${staged}/${component}/usr/bin/zel
        ${staged}/${component}/usr/lib/libzel.so.*.* ${staged}/${component}/usr/lib/*/libzel.so.*.*)
    foreach(binary IN LISTS binaries)
        # The library is where the system looks anyway.
        file(RPATH_REMOVE FILE ${binary})
        execute_process(COMMAND ${STRIP} --strip-unneeded --remove-section=.comment ${binary}
            COMMAND_ERROR_IS_FATAL ANY)
        zel_dependencies(${binary} found)
        string(TOUPPER ${component} name)
        list(PREPEND found ${CPACK_DEBIAN_${name}_PACKAGE_DEPENDS})
        list(JOIN found ", " CPACK_DEBIAN_${name}_PACKAGE_DEPENDS)
    endforeach()
endforeach()

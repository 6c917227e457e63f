# Installs the build into a prefix of its own and builds the examples against what lies there, as
# a stranger would: by find_package, and the first one also by pkg-config. They are then run, and
# with them the programs of the guide; all but the furnished house, which has a test of its own.

set(work ${BUILD_DIR}/external_client)
set(prefix ${work}/prefix)
file(REMOVE_RECURSE ${work})
file(MAKE_DIRECTORY ${work})

function(run)
    execute_process(COMMAND ${ARGV} WORKING_DIRECTORY ${work} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

# For another system: that has no place where programs look for libraries but their own folder and
# the search path.
set(for_target -DCMAKE_PREFIX_PATH=${prefix})
set(library_place -Wl,-rpath,${prefix}/${LIBDIR})
if(TOOLCHAIN)
    set(for_target -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN} -Dzel_DIR=${prefix}/${LIBDIR}/cmake/zel)
    set(library_place)
    set(ENV{WINEPATH} Z:${prefix}/bin)
endif()

function(run_built program)
    run(${EMULATOR} ${program}${SUFFIX} ${ARGN})
endfunction()

run(${CMAKE_COMMAND} -S ${EXAMPLES} -B ${work}/examples -G ${GENERATOR}
    ${for_target} -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${CXX_FLAGS})
run(${CMAKE_COMMAND} --build ${work}/examples)
run_built(${work}/examples/first_steps/first_steps ${work}/by_package.zel)
run_built(${work}/examples/a_room/a_room ${work}/a_room.zel)
file(MAKE_DIRECTORY ${work}/guide)
file(GLOB chapters ${EXAMPLES}/../docs/guide/examples/*.cpp)
foreach(chapter IN LISTS chapters)
    get_filename_component(name ${chapter} NAME_WE)
    run_built(${work}/examples/guide/guide_${name} ${work}/guide)
endforeach()

set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
execute_process(COMMAND ${PKG_CONFIG} --cflags --libs zel
    OUTPUT_VARIABLE package_flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(package_flags UNIX_COMMAND "${package_flags}")
separate_arguments(own_flags UNIX_COMMAND "${CXX_FLAGS}")
run(${CXX} ${own_flags} -std=c++17 -Wall -Wextra -Wpedantic -Werror
    -I${EXAMPLES}/.. ${EXAMPLES}/first_steps/main.cpp ${package_flags} ${library_place}
    -o ${work}/by_pkg_config${SUFFIX})
run_built(${work}/by_pkg_config ${work}/by_pkg_config.zel)

# The tool must find the library from where both were installed.
if(EXISTS ${prefix}/bin/zel${SUFFIX})
    run_built(${prefix}/bin/zel info ${work}/by_package.zel)
    run_built(${prefix}/bin/zel check ${work}/a_room.zel)
    if(NOT EXISTS ${prefix}/share/man/man1/zel.1)
        message(FATAL_ERROR "The manual page isn't installed")
    endif()
endif()

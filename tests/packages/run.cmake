# Makes the Debian packages of what is built, looks at them with lintian, unpacks them into a folder,
# and uses what lies there: the tool, its place in desktop and shell, and the library from a client.

set(work ${BUILD_DIR}/packages_test)
set(root ${work}/root)
file(REMOVE_RECURSE ${work})
file(MAKE_DIRECTORY ${root} ${work}/control)

function(run)
    execute_process(COMMAND ${ARGV} WORKING_DIRECTORY ${work} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# What goes in.

run(${CPACK} --config ${BUILD_DIR}/CPackConfig.cmake -B ${work})
file(GLOB packages ${work}/*.deb)
list(LENGTH packages nb_packages)
if(NOT nb_packages EQUAL 3)
    message(FATAL_ERROR "Three packages expected: ${packages}")
endif()
foreach(package IN LISTS packages)
    run(dpkg-deb -x ${package} ${root})
    execute_process(COMMAND dpkg-deb -f ${package} Package OUTPUT_VARIABLE name
        OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    run(dpkg-deb -e ${package} ${work}/control/${name})
    execute_process(COMMAND sh -c "dpkg-deb --fsys-tarfile ${package} | tar -t"
        OUTPUT_VARIABLE ${name}_files COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND dpkg-deb -f ${package} Depends OUTPUT_VARIABLE ${name}_depends
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()

function(holds package)
    foreach(file IN LISTS ARGN)
        string(FIND "${${package}_files}" "./usr/${file}\n" place)
        if(place EQUAL -1)
            message(SEND_ERROR "${package} has no ${file}")
        endif()
    endforeach()
endfunction()
function(depends package)
    foreach(text IN LISTS ARGN)
        string(FIND "${${package}_depends}" "${text}" place)
        if(place EQUAL -1)
            message(SEND_ERROR "${package} depends on ${${package}_depends} and not on ${text}")
        endif()
    endforeach()
endfunction()

set(library libzel.so.${VERSION})
string(REGEX MATCH "^[0-9]+" major ${VERSION})
holds(libzel${major} ${LIBDIR}/${library} ${LIBDIR}/libzel.so.${major})
holds(libzel-dev ${LIBDIR}/libzel.so ${LIBDIR}/pkgconfig/zel.pc ${LIBDIR}/cmake/zel/zelConfig.cmake
    include/zel/IZelMgr.h include/zel/xml/XIXMLElement.h)
holds(zel-tools bin/zel share/man/man1/zel.1.gz share/thumbnailers/zel.thumbnailer
    share/mime/packages/zel.xml share/bash-completion/completions/zel
    share/zsh/vendor-completions/_zel share/fish/vendor_completions.d/zel.fish)
foreach(package IN ITEMS libzel${major} libzel-dev zel-tools)
    holds(${package} share/doc/${package}/copyright share/doc/${package}/changelog.Debian.gz)
endforeach()
depends(libzel${major} "libc6 (>=" "libstdc++6 (>=")
depends(libzel-dev "libzel${major} (= ${VERSION}-")
depends(zel-tools "libzel${major} (= ${VERSION}-" "libassimp" "libpng")

# Programs that link the library get a dependency by these.
file(STRINGS ${work}/control/libzel${major}/symbols symbols REGEX "^ ")
list(TRANSFORM symbols REPLACE "^ (.*)@Base .*" "\\1")
file(STRINGS ${EXPORTS} exports)
if(NOT "${symbols}" STREQUAL "${exports}")
    message(SEND_ERROR "packaging/symbols has other names than cmake/exports.txt")
endif()
file(READ ${work}/control/libzel${major}/triggers triggers)
if(NOT triggers MATCHES "ldconfig")
    message(SEND_ERROR "The system would not find the library: ${triggers}")
endif()
file(STRINGS ${PACKAGING}/changelog changelog LIMIT_COUNT 1)
if(NOT changelog MATCHES "^zel \\(${VERSION}-")
    message(SEND_ERROR "packaging/changelog does not begin with version ${VERSION}")
endif()

find_program(LINTIAN lintian)
if(LINTIAN)
    execute_process(COMMAND ${LINTIAN} --allow-root --fail-on error,warning --tag-display-limit 0
        ${packages} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    message(STATUS "lintian ends with ${result}\n${output}")
    if(NOT result EQUAL 0)
        message(SEND_ERROR "lintian is not content")
    endif()
else()
    message(STATUS "lintian is not installed: this part is SKIPPED")
endif()

# The tool, in desktop and shell.

set(ENV{LD_LIBRARY_PATH} ${root}/usr/${LIBDIR})
set(ENV{PATH} ${root}/usr/bin:$ENV{PATH})
file(STRINGS ${root}/usr/share/thumbnailers/zel.thumbnailer thumbnailer REGEX "^Exec=")
string(REGEX REPLACE "^Exec=" "" thumbnailer "${thumbnailer}")
string(REPLACE "%s" 32 thumbnailer "${thumbnailer}")
string(REPLACE "%i" ${SAMPLE} thumbnailer "${thumbnailer}")
string(REPLACE "%o" ${work}/thumbnail.png thumbnailer "${thumbnailer}")
separate_arguments(thumbnailer UNIX_COMMAND "${thumbnailer}")
run(${thumbnailer})
# Behind the signature and the head of its first block: width and height.
file(READ ${work}/thumbnail.png head OFFSET 16 LIMIT 8 HEX)
if(NOT head STREQUAL "0000002000000015")
    message(SEND_ERROR "The thumbnail of 96 x 64 pixels is not 32 x 21: ${head}")
endif()

set(complete "source ${root}/usr/share/bash-completion/completions/zel
    reply() { COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _zel; echo \"\${COMPREPLY[*]}\"; }
    reply zel re; reply zel rewrite --m; reply zel shader e; reply zel preview --size 3 ${SAMPLE}")
execute_process(COMMAND bash -c "${complete}" OUTPUT_VARIABLE completed COMMAND_ERROR_IS_FATAL ANY)
if(NOT completed STREQUAL "rewrite\n--min-version\nexport\n${SAMPLE}\n")
    message(SEND_ERROR "The shell completes to ${completed}")
endif()

find_program(UPDATE_MIME update-mime-database)
find_program(GIO gio)
if(UPDATE_MIME AND GIO)
    # Beside the types of the system, and known by name and by content.
    file(COPY /usr/share/mime/packages/freedesktop.org.xml DESTINATION ${root}/usr/share/mime/packages)
    set(ENV{XDG_DATA_DIRS} ${root}/usr/share)
    set(ENV{XDG_DATA_HOME} ${work})
    run(${UPDATE_MIME} ${root}/usr/share/mime)
    file(COPY_FILE ${SAMPLE} ${work}/nameless)
    foreach(file IN ITEMS ${SAMPLE} ${work}/nameless)
        execute_process(COMMAND ${GIO} info -a standard::content-type ${file} OUTPUT_VARIABLE type)
        if(NOT type MATCHES "application/x-zel\\+xml")
            message(SEND_ERROR "The desktop takes ${file} for ${type}")
        endif()
    endforeach()
else()
    message(STATUS "update-mime-database or gio is not installed: this part is SKIPPED")
endif()

# A client, by CMake and by pkg-config.

file(WRITE ${work}/client/CMakeLists.txt "cmake_minimum_required(VERSION 3.21)
project(client LANGUAGES CXX)
find_package(zel ${VERSION} REQUIRED)
add_executable(client ${EXAMPLES}/first_steps/main.cpp)
target_include_directories(client PRIVATE ${EXAMPLES}/..)
target_link_libraries(client PRIVATE zel::zel)
")
run(${CMAKE_COMMAND} -S client -B client/build -G ${GENERATOR}
    -DCMAKE_PREFIX_PATH=${root}/usr -DCMAKE_CXX_COMPILER=${CXX})
run(${CMAKE_COMMAND} --build client/build)
run(client/build/client ${work}/by_cmake.zel)

set(ENV{PKG_CONFIG_PATH} ${root}/usr/${LIBDIR}/pkgconfig)
execute_process(COMMAND ${PKG_CONFIG} --cflags --libs zel
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
run(${CXX} -std=c++17 -I${EXAMPLES}/.. ${EXAMPLES}/first_steps/main.cpp ${flags} -o by_pkg_config)
run(${work}/by_pkg_config ${work}/by_pkg_config.zel)
run(zel info ${work}/by_cmake.zel ${work}/by_pkg_config.zel)

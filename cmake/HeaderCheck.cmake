# Compiles each public header on its own, as a client with an older standard would.

file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/include
    ${PROJECT_SOURCE_DIR}/include/zel/*.h)
set(sources)
foreach(header IN LISTS headers)
    string(MAKE_C_IDENTIFIER ${header} name)
    set(source ${PROJECT_BINARY_DIR}/header_check/${name}.cpp)
    # Included twice: the second time it has to be guarded.
    file(CONFIGURE OUTPUT ${source} CONTENT "#include <@header@>\n#include <@header@>\n" @ONLY)
    list(APPEND sources ${source})
endforeach()

add_library(zel_header_check OBJECT ${sources})
set_target_properties(zel_header_check PROPERTIES CXX_STANDARD 17)
target_include_directories(zel_header_check PRIVATE ${PROJECT_SOURCE_DIR}/include)
target_compile_options(zel_header_check PRIVATE -Wall -Wextra -Wpedantic -Werror)

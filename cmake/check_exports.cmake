# cmake -DNM=nm -DLIBRARY=libzel.so -DEXPECTED=exports.txt -P check_exports.cmake
# cmake -DOBJDUMP=objdump -DLIBRARY=libzel.dll -DEXPECTED=exports.txt -P check_exports.cmake
# Fails if the library exports a name that the list lacks, or lacks one that is listed.

if(OBJDUMP)
    execute_process(COMMAND ${OBJDUMP} -p ${LIBRARY}
        OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE ".*Ordinal/Name Pointer. Table" "" output "${output}")
    string(REGEX REPLACE "\n\n.*" "" output "${output}")
    string(REGEX REPLACE "\n[^\n]*] " "\n" output "${output}")
    string(REGEX MATCHALL "[^\n]+" lines "${output}")
else()
    execute_process(COMMAND ${NM} -D --defined-only --format=posix ${LIBRARY}
        OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" lines "${output}")
    list(TRANSFORM lines REPLACE " .*" "")
endif()
file(STRINGS ${EXPECTED} expected)

set(surplus ${lines})
list(REMOVE_ITEM surplus ${expected})
set(missing ${expected})
list(REMOVE_ITEM missing ${lines})
foreach(name IN LISTS surplus)
    message(SEND_ERROR "exported but not listed: ${name}")
endforeach()
foreach(name IN LISTS missing)
    message(SEND_ERROR "listed but not exported: ${name}")
endforeach()

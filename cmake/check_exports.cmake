# cmake -DNM=nm -DLIBRARY=libzel.so -DEXPECTED=exports.txt -P check_exports.cmake
# Fails if the library exports a name that the list lacks, or lacks one that is listed.

execute_process(COMMAND ${NM} -D --defined-only --format=posix ${LIBRARY}
    OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" lines "${output}")
list(TRANSFORM lines REPLACE " .*" "")
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

# The compiler's own libraries, which programs look for beside themselves. They are shared, so that
# an exception can pass between the library and its client.

set(zel_runtime_dlls)
foreach(name IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(EXISTS ${path})
        get_filename_component(path ${path} REALPATH)
        list(APPEND zel_runtime_dlls ${path})
    endif()
endforeach()
file(COPY ${zel_runtime_dlls} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})

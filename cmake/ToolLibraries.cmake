# The libraries of the tool: CLI11 and nlohmann-json are nothing but headers; libpng and Assimp may be
# missing on a system for which there are no packages of them.

# Headers of the machine that builds must not come along when the build is for another system, so the
# folder alone is linked into the build tree then.
function(zel_link_headers target folder)
    find_path(${folder}_headers ${folder} NO_CMAKE_FIND_ROOT_PATH)
    if(NOT ${folder}_headers)
        message(FATAL_ERROR "${target} isn't installed: run scripts/install-deps")
    endif()
    set(links ${PROJECT_BINARY_DIR}/header_only/${folder})
    file(MAKE_DIRECTORY ${links})
    file(CREATE_LINK ${${folder}_headers}/${folder} ${links}/${folder} SYMBOLIC)
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} INTERFACE ${links})
endfunction()

if(CMAKE_CROSSCOMPILING)
    zel_link_headers(CLI11::CLI11 CLI)
    zel_link_headers(nlohmann_json::nlohmann_json nlohmann)
    find_package(PNG QUIET)
    find_package(assimp QUIET)
    foreach(name IN ITEMS PNG assimp)
        if(NOT ${name}_FOUND)
            message(STATUS "The tool is built without ${name}")
        endif()
    endforeach()
else()
    find_package(CLI11 REQUIRED)
    find_package(nlohmann_json REQUIRED)
    find_package(PNG REQUIRED)
    find_package(assimp REQUIRED)
endif()

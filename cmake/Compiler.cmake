# How everything here is compiled: the options, the compiler cache and the shared precompiled headers.
if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang|MSVC")
    message(FATAL_ERROR "Tessary needs clang, clang-cl or MSVC: ${CMAKE_CXX_COMPILER_ID} has no __declspec(property).")
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(TESSARY_CCACHE ccache NO_CMAKE_FIND_ROOT_PATH)
if(TESSARY_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros
        CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}
        ${TESSARY_CCACHE})
endif()

# What users of the library must compile with too, and what is for the project alone.
add_library(tessary_options INTERFACE)
target_compile_features(tessary_options INTERFACE cxx_std_20)
add_library(tessary_warnings INTERFACE)
if(MSVC)
    target_compile_options(tessary_options INTERFACE /utf-8 /Zc:__cplusplus)
    target_compile_options(tessary_warnings INTERFACE /W4 /WX)
else()
    target_compile_options(tessary_options INTERFACE -fdeclspec -fno-strict-aliasing)
    target_compile_options(tessary_warnings INTERFACE -Wall -Wextra -Werror)
endif()
if(TESSARY_COUNT_OBJECTS)
    target_compile_definitions(tessary_options INTERFACE TESSARY_COUNT_OBJECTS=1)
endif()
if(TESSARY_SANITIZE)
    add_compile_options(
        -fsanitize=address,undefined,fuzzer-no-link -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
    add_link_options(-fsanitize=address,undefined)
endif()

# tessary_add_precompiled_header(NAME LIBRARIES HEADERS...) precompiles headers for many targets at once.
function(tessary_add_precompiled_header name libraries)
    set(empty ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    if(NOT EXISTS ${empty})
        file(WRITE ${empty} "")
    endif()
    add_library(${name} STATIC ${empty})
    target_link_libraries(${name} PRIVATE tessary_options tessary_warnings ${libraries})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    tessary_stable_precompiled_header(${name})
    target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

function(tessary_use_precompiled_header target name)
    tessary_stable_precompiled_header(${target})
    target_precompile_headers(${target} REUSE_FROM ${name})
endfunction()

# Without a time stamp a precompiled header made again is the same file, and the compiler cache finds what used it.
function(tessary_stable_precompiled_header target)
    if(CMAKE_CXX_COMPILER_ID MATCHES Clang AND NOT MSVC)
        target_compile_options(${target} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
    endif()
endfunction()

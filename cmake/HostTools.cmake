# The tools that the build itself runs, as Tessary::host_NAME: those of this build, or, when it is for another system,
# those of a second build of this tree for the machine at hand, in TESSARY_HOST_DIR.
if(NOT CMAKE_CROSSCOMPILING)
    foreach(tool IN LISTS TESSARY_HOST_TOOLS)
        if(TARGET ${tool})
            add_executable(Tessary::host_${tool} ALIAS ${tool})
        endif()
    endforeach()
    return()
endif()

set(TESSARY_HOST_DIR ${PROJECT_BINARY_DIR}/host CACHE PATH "A build for this machine, of the tools that the build runs")
find_program(TESSARY_HOST_COMPILER NAMES clang++-19 clang++ REQUIRED NO_CMAKE_FIND_ROOT_PATH)

if(NOT EXISTS ${TESSARY_HOST_DIR}/CMakeCache.txt)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -S ${PROJECT_SOURCE_DIR} -B ${TESSARY_HOST_DIR} -G ${CMAKE_GENERATOR}
            -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=${TESSARY_HOST_COMPILER} -DTESSARY_BUILD_TESTS=OFF
        OUTPUT_QUIET
        COMMAND_ERROR_IS_FATAL ANY)
endif()

set(programs)
set(targets)
foreach(tool IN LISTS TESSARY_HOST_TOOLS)
    if(TARGET ${tool})
        set(program ${TESSARY_HOST_DIR}/tools/${tool})
        add_executable(Tessary::host_${tool} IMPORTED GLOBAL)
        set_target_properties(Tessary::host_${tool} PROPERTIES IMPORTED_LOCATION ${program})
        list(APPEND programs ${program})
        list(APPEND targets ${tool})
    endif()
endforeach()

add_custom_target(host_tools ALL
    COMMAND ${CMAKE_COMMAND} --build ${TESSARY_HOST_DIR} --target ${targets}
    BYPRODUCTS ${programs}
    COMMENT "Building the tools that the build runs"
    USES_TERMINAL)
foreach(tool IN LISTS targets)
    add_dependencies(Tessary::host_${tool} host_tools)
endforeach()

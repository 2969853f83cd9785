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

set(TESSARY_HOST_DIR ${PROJECT_BINARY_DIR}/host CACHE PATH "Where the tools that the build runs are built")
find_program(TESSARY_HOST_COMPILER NAMES clang++-19 clang++ REQUIRED NO_CMAKE_FIND_ROOT_PATH)

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

include(ExternalProject)
ExternalProject_Add(host_tools
    SOURCE_DIR ${PROJECT_SOURCE_DIR}
    BINARY_DIR ${TESSARY_HOST_DIR}
    CMAKE_ARGS -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=${TESSARY_HOST_COMPILER} -DTESSARY_BUILD_TESTS=OFF
    BUILD_COMMAND ${CMAKE_COMMAND} --build <BINARY_DIR> --target ${targets}
    BUILD_BYPRODUCTS ${programs}
    BUILD_ALWAYS ON
    LOG_CONFIGURE ON
    INSTALL_COMMAND "")
foreach(tool IN LISTS targets)
    add_dependencies(Tessary::host_${tool} host_tools)
endforeach()

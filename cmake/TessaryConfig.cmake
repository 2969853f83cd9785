# find_package(Tessary) gives Tessary::tessary, tessary_add_application and tessary_add_forms.
enable_language(RC)
include(${CMAKE_CURRENT_LIST_DIR}/TessaryTargets.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/TessaryApplication.cmake)
set_property(GLOBAL PROPERTY TESSARY_RESOURCES ${CMAKE_CURRENT_LIST_DIR})

foreach(tool formconv glyphpack)
    find_program(TESSARY_${tool} ${tool} PATHS ${CMAKE_CURRENT_LIST_DIR}/tools NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
    if(TESSARY_${tool} AND NOT TARGET Tessary::host_${tool})
        add_executable(Tessary::host_${tool} IMPORTED GLOBAL)
        set_target_properties(Tessary::host_${tool} PROPERTIES IMPORTED_LOCATION ${TESSARY_${tool}})
    endif()
endforeach()

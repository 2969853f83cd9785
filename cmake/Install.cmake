# The installed package: another project says find_package(Tessary) and links Tessary::tessary.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(packageDir ${CMAKE_INSTALL_LIBDIR}/cmake/Tessary)

# Headers keep the layout of the repository, so that includes read the same inside and outside.
foreach(room IN LISTS TESSARY_ROOMS)
    file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${room}/*.h)
    install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tessary/${room})
endforeach()
file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/vcl/*.h)
install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tessary/vcl)

set_target_properties(tessary_options PROPERTIES EXPORT_NAME options)
foreach(target IN LISTS roomLibraries)
    string(REPLACE tessary_ "" name ${target})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    if(TARGET ${target}_resources)
        list(APPEND resourceObjects ${target}_resources)
    endif()
endforeach()
install(TARGETS tessary tessary_options ${roomLibraries} ${resourceObjects}
    EXPORT TessaryTargets
    OBJECTS DESTINATION ${packageDir}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tessary)
install(EXPORT TessaryTargets NAMESPACE Tessary:: DESTINATION ${packageDir})

foreach(tool formconv glyphpack)
    if(TARGET Tessary::host_${tool})
        install(PROGRAMS $<TARGET_FILE:Tessary::host_${tool}> DESTINATION ${packageDir}/tools)
    endif()
    if(TARGET ${tool})
        install(TARGETS ${tool})
    endif()
endforeach()
if(TARGET formcheck)
    install(TARGETS formcheck)
endif()

write_basic_package_version_file(${PROJECT_BINARY_DIR}/TessaryConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(
    FILES
        ${PROJECT_BINARY_DIR}/TessaryConfigVersion.cmake
        ${PROJECT_SOURCE_DIR}/cmake/TessaryConfig.cmake
        ${PROJECT_SOURCE_DIR}/cmake/TessaryApplication.cmake
        ${PROJECT_SOURCE_DIR}/resources/application.rc
        ${PROJECT_SOURCE_DIR}/resources/application.manifest
    DESTINATION ${packageDir})

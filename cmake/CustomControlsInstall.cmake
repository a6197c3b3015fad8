include(CMakePackageConfigHelpers)

set(customcontrols_cmakedir "${CMAKE_INSTALL_LIBDIR}/cmake")

# One package per library: each is found on its own, and CustomControls brings CorvaneBase along.
function(customcontrols_install_package package target)
    install(TARGETS ${target} EXPORT ${package}Targets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    install(EXPORT ${package}Targets NAMESPACE ${package}:: DESTINATION ${customcontrols_cmakedir}/${package})
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/${package}Config.cmake.in"
        "${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake"
        INSTALL_DESTINATION ${customcontrols_cmakedir}/${package})
    write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake"
        COMPATIBILITY SameMajorVersion)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake"
                  "${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake"
        DESTINATION ${customcontrols_cmakedir}/${package})
endfunction()

if(CORVANE_BASE STREQUAL "bundled")
    customcontrols_install_package(CorvaneBase CorvaneBase)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/CorvaneBase" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE)
endif()

customcontrols_install_package(CustomControls CustomControls)
# Public headers are those of exported classes; platform/ is the library's own business.
get_target_property(customcontrols_internal_headers CustomControlsInternal CUSTOMCONTROLS_INTERNAL_HEADERS)
set(customcontrols_excluded PATTERN "platform" EXCLUDE PATTERN "resources" EXCLUDE PATTERN "*_p.h" EXCLUDE)
foreach(header IN LISTS customcontrols_internal_headers)
    list(APPEND customcontrols_excluded PATTERN "${header}" EXCLUDE)
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/CustomControls" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h" ${customcontrols_excluded})

include(CMakePackageConfigHelpers)

set(customcontrols_cmakedir "${CMAKE_INSTALL_LIBDIR}/cmake")

# One package per library: each is found on its own, and CustomControls brings CorvaneBase along.
function(customcontrols_install_package package target)
    install(TARGETS ${target} EXPORT ${package}Targets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    install(EXPORT ${package}Targets NAMESPACE ${package}:: DESTINATION ${customcontrols_cmakedir}/${package}
        COMPONENT Development)
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/${package}Config.cmake.in"
        "${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake"
        INSTALL_DESTINATION ${customcontrols_cmakedir}/${package})
    write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake"
        COMPATIBILITY SameMajorVersion)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake"
                  "${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake"
        DESTINATION ${customcontrols_cmakedir}/${package} COMPONENT Development)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/${package}.pc.in" "${CMAKE_CURRENT_BINARY_DIR}/${package}.pc" @ONLY)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${package}.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT Development)
endfunction()

# A pkg-config file names its folders as they are, or as they stand below the prefix.
foreach(dir LIBDIR INCLUDEDIR)
    if(IS_ABSOLUTE "${CMAKE_INSTALL_${dir}}")
        set(customcontrols_pc_${dir} "${CMAKE_INSTALL_${dir}}")
    else()
        set(customcontrols_pc_${dir} "\${prefix}/${CMAKE_INSTALL_${dir}}")
    endif()
endforeach()
# The prefix is found from the place of the file itself, so that an installed tree can be moved.
file(RELATIVE_PATH customcontrols_pc_prefix "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
set(customcontrols_pc_prefix "\${pcfiledir}/${customcontrols_pc_prefix}")

if(CORVANE_BASE STREQUAL "bundled")
    customcontrols_install_package(CorvaneBase CorvaneBase)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/CorvaneBase" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT Development
        FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE)
endif()

customcontrols_install_package(CustomControls CustomControls)
# Public headers are those of exported classes; platform/ and accessibility/ are the library's own business.
get_target_property(customcontrols_internal_headers CustomControlsInternal CUSTOMCONTROLS_INTERNAL_HEADERS)
set(customcontrols_excluded PATTERN "platform" EXCLUDE PATTERN "accessibility" EXCLUDE PATTERN "resources" EXCLUDE
    PATTERN "*_p.h" EXCLUDE)
foreach(header IN LISTS customcontrols_internal_headers)
    list(APPEND customcontrols_excluded PATTERN "${header}" EXCLUDE)
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/CustomControls" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT Development
    FILES_MATCHING PATTERN "*.h" ${customcontrols_excluded})

get_target_property(customcontrols_translations CustomControlsInternal CUSTOMCONTROLS_TRANSLATIONS)
install(FILES ${customcontrols_translations} DESTINATION ${CMAKE_INSTALL_DATADIR}/CustomControls/translations
    COMPONENT Runtime)

# An installed library finds the one beside it, wherever the tree was put.
if(UNIX AND NOT APPLE AND BUILD_SHARED_LIBS)
    set_target_properties(CustomControls PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()

# Qt's plug-ins lie in a folder that every distribution names as it likes; ours goes to the same one below our prefix.
if(TARGET CustomControlsDesigner)
    get_target_property(customcontrols_qmake Qt6::qmake IMPORTED_LOCATION)
    execute_process(COMMAND "${customcontrols_qmake}" -query QT_INSTALL_PREFIX
        OUTPUT_VARIABLE customcontrols_qt_prefix OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND "${customcontrols_qmake}" -query QT_INSTALL_PLUGINS
        OUTPUT_VARIABLE customcontrols_qt_plugins OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    file(RELATIVE_PATH customcontrols_plugindir "${customcontrols_qt_prefix}" "${customcontrols_qt_plugins}")
    set(CUSTOMCONTROLS_INSTALL_PLUGINDIR "${customcontrols_plugindir}" CACHE STRING
        "Where Qt's plug-ins lie below the prefix")
    install(TARGETS CustomControlsDesigner DESTINATION "${CUSTOMCONTROLS_INSTALL_PLUGINDIR}/designer"
        COMPONENT Designer)
    if(UNIX AND NOT APPLE)
        file(RELATIVE_PATH customcontrols_rpath
            "${CMAKE_INSTALL_PREFIX}/${CUSTOMCONTROLS_INSTALL_PLUGINDIR}/designer" "${CMAKE_INSTALL_FULL_LIBDIR}")
        set_target_properties(CustomControlsDesigner PROPERTIES INSTALL_RPATH "$ORIGIN/${customcontrols_rpath}")
    endif()
endif()

# The programs that show and try the library come along where they are built.
foreach(program gallery machine-simulator)
    if(TARGET ${program})
        install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Programs)
        if(UNIX AND NOT APPLE)
            file(RELATIVE_PATH customcontrols_rpath "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
            set_target_properties(${program} PROPERTIES INSTALL_RPATH "$ORIGIN/${customcontrols_rpath}")
        endif()
    endif()
endforeach()

if(NOT PROJECT_IS_TOP_LEVEL)
    return()
endif()
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/customcontrols"
    RENAME copyright COMPONENT Runtime)
# The pages lie as in the source tree, so that their links lead on here too: to each other, to the smallest host, to the
# images that a host supplies, and by a link of the file system to the headers.
set(customcontrols_docdir "${CMAKE_INSTALL_DATADIR}/doc/customcontrols")
install(FILES "${PROJECT_SOURCE_DIR}/README.md" "${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${PROJECT_SOURCE_DIR}/LICENSE"
    DESTINATION "${customcontrols_docdir}" COMPONENT Development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs" DESTINATION "${customcontrols_docdir}" COMPONENT Development
    FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "docs/examples" EXCLUDE PATTERN "docs/host" EXCLUDE)
foreach(folder CorvaneBase benchmarks designer)
    install(FILES "${PROJECT_SOURCE_DIR}/${folder}/README.md" DESTINATION "${customcontrols_docdir}/${folder}"
        COMPONENT Development)
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples/hello" DESTINATION "${customcontrols_docdir}/examples"
    COMPONENT Development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples/gallery/resources"
    DESTINATION "${customcontrols_docdir}/examples/gallery" COMPONENT Development)
if(UNIX)
    file(RELATIVE_PATH customcontrols_headers "${CMAKE_INSTALL_FULL_DATADIR}/doc/customcontrols"
        "${CMAKE_INSTALL_FULL_INCLUDEDIR}/CustomControls")
    install(CODE "file(CREATE_LINK \"${customcontrols_headers}\"
        \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${customcontrols_docdir}/CustomControls\" SYMBOLIC)"
        COMPONENT Development)
endif()
set(CPACK_PACKAGE_NAME customcontrols)
set(CPACK_PACKAGE_VENDOR "CustomControls")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "House set of controls and dialogs of a desktop CAM application")
set(CPACK_PACKAGE_CONTACT "CustomControls <customcontrols@localhost>")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_PACKAGE_DESCRIPTION_FILE "${PROJECT_SOURCE_DIR}/cmake/description.txt")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/package-permissions.cmake")
set(CPACK_GENERATOR TGZ)
if(UNIX AND NOT APPLE)
    set(CPACK_GENERATOR DEB)
endif()
# One package with library, headers and programs; what it links is read off its files.
set(CPACK_DEB_COMPONENT_INSTALL OFF)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The libraries depend on each other: those of the package itself are looked for where they are built.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_BINARY_DIR}/lib")
# The platform that draws on a display is a plug-in, which no file links.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-cjk")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-base-dev, designer-qt6")
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# What is built on the libraries gets its dependency from the package, and the linker's cache is refreshed.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)

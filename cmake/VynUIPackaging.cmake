# Installation: a relocatable tree with the three libraries, the QML module directory,
# headers under include/{VynUI,VynCommon,QtCommons} and a CMake package:
#
#   find_package(VynUI CONFIG REQUIRED)
#   target_link_libraries(app PRIVATE VynUI::VynUI)   # brings VynCommon and QtCommons
#   # QML import path: ${VYNUI_QML_IMPORT_DIR}

include(CMakePackageConfigHelpers)

set(VYNUI_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/VynUI)

install(TARGETS QtCommons VynCommon VynUI
    EXPORT VynUITargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# The module directory: the plugin, the qmldir, the type information and the documents and
# scripts the qmldir names, at the paths it names them (qml/<Family>/<file>). The engine
# loads the copies compiled into the backing library as resources (the qmldir prefers them);
# the files on disk are what qmllint, qmlls and Qt Creator read to know the module's types.
install(TARGETS VynUIPlugin
    LIBRARY DESTINATION ${VYNUI_INSTALL_QMLDIR}/VynUI)
install(FILES
    ${VYNUI_QML_OUTPUT_DIR}/VynUI/qmldir
    ${VYNUI_QML_OUTPUT_DIR}/VynUI/VynUI.qmltypes
    DESTINATION ${VYNUI_INSTALL_QMLDIR}/VynUI)
foreach(_file ${VYNUI_QML_FILES})
    get_filename_component(_dir ${_file} DIRECTORY)
    install(FILES ${PROJECT_SOURCE_DIR}/src/${_file}
        DESTINATION ${VYNUI_INSTALL_QMLDIR}/VynUI/${_dir})
endforeach()

install(EXPORT VynUITargets
    NAMESPACE VynUI::
    DESTINATION ${VYNUI_INSTALL_CMAKEDIR})

configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/VynUIConfig.cmake.in
    ${CMAKE_BINARY_DIR}/VynUIConfig.cmake
    INSTALL_DESTINATION ${VYNUI_INSTALL_CMAKEDIR}
    PATH_VARS VYNUI_INSTALL_QMLDIR CMAKE_INSTALL_INCLUDEDIR)
write_basic_package_version_file(
    ${CMAKE_BINARY_DIR}/VynUIConfigVersion.cmake
    VERSION ${PROJECT_VERSION}
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${CMAKE_BINARY_DIR}/VynUIConfig.cmake
    ${CMAKE_BINARY_DIR}/VynUIConfigVersion.cmake
    DESTINATION ${VYNUI_INSTALL_CMAKEDIR})

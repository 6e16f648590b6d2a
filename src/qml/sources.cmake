# QML documents and script libraries live under qml/<Family>/ and are picked up here;
# a document whose text starts with "pragma Singleton" is registered as a singleton.
# At most one singleton document may import VynUI itself (today VynGradients): importing a
# module loads all its singletons first, so two singletons that import it wait for each
# other and the engine reports a cyclic dependency.
# Images and fonts under qml/ become module resources.
file(GLOB_RECURSE _vynui_qml CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}
    ${CMAKE_CURRENT_SOURCE_DIR}/qml/*.qml
    ${CMAKE_CURRENT_SOURCE_DIR}/qml/*.js)
list(SORT _vynui_qml)
foreach(_file ${_vynui_qml})
    # qml/Private/ holds the documents' own helpers: module members, but not public types.
    if(_file MATCHES "^qml/Private/")
        set_source_files_properties(${_file} PROPERTIES QT_QML_SKIP_QMLDIR_ENTRY TRUE)
    endif()
    file(STRINGS ${CMAKE_CURRENT_SOURCE_DIR}/${_file} _singleton REGEX "^pragma Singleton")
    if(_singleton)
        set_source_files_properties(${_file} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
    endif()
endforeach()
list(APPEND VYNUI_QML_FILES ${_vynui_qml})

file(GLOB_RECURSE _vynui_resources CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}
    ${CMAKE_CURRENT_SOURCE_DIR}/qml/*.png
    ${CMAKE_CURRENT_SOURCE_DIR}/qml/*.svg
    ${CMAKE_CURRENT_SOURCE_DIR}/qml/*.ttf
    ${CMAKE_CURRENT_SOURCE_DIR}/qml/*.otf
    ${CMAKE_CURRENT_SOURCE_DIR}/qml/*.txt)
list(SORT _vynui_resources)
list(APPEND VYNUI_RESOURCES ${_vynui_resources})

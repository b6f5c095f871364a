# Installation: the module as one file in Qt's QML folder layout, which a host links from there too; the sibling
# libraries beside it; headers; a CMake package.

set(TAMBLE_INSTALL_QML_DIRECTORY ${CMAKE_INSTALL_LIBDIR}/qt6/qml/TambleClient/Control)
set(TAMBLE_INSTALL_PACKAGE_DIRECTORY ${CMAKE_INSTALL_LIBDIR}/cmake/TambleClientControl)

file(RELATIVE_PATH to_libraries /${TAMBLE_INSTALL_QML_DIRECTORY} /${CMAKE_INSTALL_LIBDIR})
set_target_properties(tambleclient-control PROPERTIES
    EXPORT_NAME Control
    INSTALL_RPATH "$ORIGIN/${to_libraries}"
)

install(TARGETS tambleclient-control
    EXPORT TambleClientControlTargets
    LIBRARY DESTINATION ${TAMBLE_INSTALL_QML_DIRECTORY}
)
install(DIRECTORY ${TAMBLE_QML_MODULE_DIRECTORY}/
    DESTINATION ${TAMBLE_INSTALL_QML_DIRECTORY}
    FILES_MATCHING PATTERN qmldir PATTERN *.qmltypes PATTERN *.qml
)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/control/
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tambleclient-control
    FILES_MATCHING PATTERN *.h
)

install(EXPORT TambleClientControlTargets
    NAMESPACE Tamble::
    DESTINATION ${TAMBLE_INSTALL_PACKAGE_DIRECTORY}
)
include(CMakePackageConfigHelpers)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TambleClientControlConfigVersion.cmake
    COMPATIBILITY SameMajorVersion
)
install(FILES
    ${PROJECT_SOURCE_DIR}/cmake/TambleClientControlConfig.cmake
    ${PROJECT_BINARY_DIR}/TambleClientControlConfigVersion.cmake
    DESTINATION ${TAMBLE_INSTALL_PACKAGE_DIRECTORY}
)

install(FILES /usr/share/doc/fonts-lato/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME OFL-Lato.txt)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/NOTICE DESTINATION ${CMAKE_INSTALL_DOCDIR})

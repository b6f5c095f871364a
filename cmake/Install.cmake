# Installation in three components:
#   runtime       the libraries where a linker finds them, the QML folder with a link to the module library
#   development   headers, packages for CMake and pkg-config
#   gallery       the sample client

set(qml_directory ${TAMBLE_INSTALL_QML_ROOT}/TambleClient/Control)
set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/TambleClientControl)
set(header_directory ${CMAKE_INSTALL_INCLUDEDIR}/tambleclient-control)

# The library finds its siblings from its own place and through the link in the QML folder.
file(RELATIVE_PATH to_libraries /${qml_directory} /${CMAKE_INSTALL_LIBDIR})
set_target_properties(tambleclient-control PROPERTIES
    EXPORT_NAME Control
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    INSTALL_RPATH "$ORIGIN;$ORIGIN/${to_libraries}"
)

include(cmake/PublicHeaders.cmake)
set(libraries tambleclient-control tambleclient-common tamblecommon-common tamblecommon-math)
install(TARGETS ${libraries}
    EXPORT TambleClientControlTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    FILE_SET HEADERS DESTINATION ${header_directory} COMPONENT development
)
set(library_name ${CMAKE_SHARED_LIBRARY_PREFIX}tambleclient-control${CMAKE_SHARED_LIBRARY_SUFFIX})
install(CODE "
    set(folder \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${qml_directory}\")
    file(MAKE_DIRECTORY \"\${folder}\")
    file(CREATE_LINK ${to_libraries}/${library_name}.${PROJECT_VERSION_MAJOR} \"\${folder}/${library_name}\" SYMBOLIC)
" COMPONENT runtime)
install(DIRECTORY ${TAMBLE_QML_MODULE_DIRECTORY}/
    DESTINATION ${qml_directory}
    COMPONENT runtime
    FILES_MATCHING PATTERN qmldir PATTERN *.qmltypes PATTERN *.qml
)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/NOTICE
    DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT runtime
)
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/
    DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs
    COMPONENT development
    FILES_MATCHING PATTERN *.md PATTERN gallery.png PATTERN reference EXCLUDE
)
install(FILES /usr/share/common-licenses/Apache-2.0
    DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT runtime
    RENAME Apache-2.0.txt
)

foreach(library IN ITEMS tambleclient-common tamblecommon-common tamblecommon-math)
    get_target_property(headers ${library} TAMBLE_HEADERS)
    install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${library} COMPONENT development)
endforeach()

install(EXPORT TambleClientControlTargets
    NAMESPACE Tamble::
    DESTINATION ${package_directory}
    COMPONENT development
)
include(CMakePackageConfigHelpers)
configure_package_config_file(cmake/TambleClientControlConfig.cmake.in
    ${PROJECT_BINARY_DIR}/TambleClientControlConfig.cmake
    INSTALL_DESTINATION ${package_directory}
    PATH_VARS TAMBLE_INSTALL_QML_ROOT
)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TambleClientControlConfigVersion.cmake
    COMPATIBILITY SameMajorVersion
)
install(FILES
    ${PROJECT_BINARY_DIR}/TambleClientControlConfig.cmake
    ${PROJECT_BINARY_DIR}/TambleClientControlConfigVersion.cmake
    DESTINATION ${package_directory}
    COMPONENT development
)

# Relative to the file itself, so that the tree can be moved.
set(pkgconfig_directory ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH to_prefix /${pkgconfig_directory} /)
configure_file(cmake/tambleclient-control.pc.in ${PROJECT_BINARY_DIR}/tambleclient-control.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tambleclient-control.pc
    DESTINATION ${pkgconfig_directory}
    COMPONENT development
)

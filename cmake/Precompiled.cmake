# Headers that nearly every file reads, compiled once for each of two sets; most of the time of a build would go into
# reading them again and again.
#   core    standard C++ and Qt Core: what must not reach for more
#   quick   these, Qt Gui, Qml and Quick: the module, the gallery and the tests
#
# tamble_precompile(TARGET SET)

option(TAMBLE_PRECOMPILED_HEADERS "Compile headers that nearly every file reads once only" ON)

set(TAMBLE_CORE_HEADERS
    <algorithm> <array> <cmath> <functional> <limits> <memory> <optional> <span> <string> <string_view> <unordered_map>
    <utility> <variant> <vector>
    <QtCore/QDebug> <QtCore/QFile> <QtCore/QFileInfo> <QtCore/QHash> <QtCore/QList> <QtCore/QMap> <QtCore/QObject>
    <QtCore/QPointer> <QtCore/QRegularExpression> <QtCore/QString> <QtCore/QTimer> <QtCore/QUrl> <QtCore/QVariant>
)
set(TAMBLE_QUICK_HEADERS ${TAMBLE_CORE_HEADERS}
    <QtGui/QColor> <QtGui/QFont> <QtGui/QGuiApplication> <QtGui/QImage>
    <QtQml/QQmlComponent> <QtQml/QQmlContext> <QtQml/QQmlEngine> <QtQml/QQmlListProperty> <QtQml/qqmlprivate.h>
    <QtQuick/QQuickItem> <QtQuick/QQuickWindow> <QtQuick/QSGGeometryNode>
)

# Executables are compiled like libraries: compiled headers fit only where both are.
set(CMAKE_CXX_COMPILE_OPTIONS_PIE ${CMAKE_CXX_COMPILE_OPTIONS_PIC})

function(tamble_add_header_set name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;LIBRARIES")
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/precompiled/${name}.cpp CONTENT "")
    add_library(tamble-headers-${name} OBJECT EXCLUDE_FROM_ALL ${PROJECT_BINARY_DIR}/precompiled/${name}.cpp)
    set_target_properties(tamble-headers-${name} PROPERTIES AUTOMOC OFF)
    target_link_libraries(tamble-headers-${name} PRIVATE ${arg_LIBRARIES})
    target_precompile_headers(tamble-headers-${name} PRIVATE ${arg_HEADERS})
endfunction()

if(TAMBLE_PRECOMPILED_HEADERS)
    tamble_add_header_set(core HEADERS ${TAMBLE_CORE_HEADERS} LIBRARIES Qt6::Core)
    tamble_add_header_set(quick HEADERS ${TAMBLE_QUICK_HEADERS} LIBRARIES Qt6::Quick)
endif()

function(tamble_precompile target set)
    if(TAMBLE_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} REUSE_FROM tamble-headers-${set})
    endif()
endfunction()

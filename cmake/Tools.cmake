# Build targets for the source tools: format, format-check, include-check, qml-format, qml-lint.

find_program(TAMBLE_CLANG_FORMAT clang-format)

file(GLOB_RECURSE cpp_files CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/asset/*.cpp
    ${PROJECT_SOURCE_DIR}/benchmarks/*.cpp ${PROJECT_SOURCE_DIR}/benchmarks/*.h
    ${PROJECT_SOURCE_DIR}/control/*.cpp ${PROJECT_SOURCE_DIR}/control/*.h
    ${PROJECT_SOURCE_DIR}/fuzzers/*.cpp ${PROJECT_SOURCE_DIR}/fuzzers/*.h
    ${PROJECT_SOURCE_DIR}/gallery/*.cpp ${PROJECT_SOURCE_DIR}/gallery/*.h
    ${PROJECT_SOURCE_DIR}/libs/*.cpp ${PROJECT_SOURCE_DIR}/libs/*.h
    ${PROJECT_SOURCE_DIR}/tests/*.cpp ${PROJECT_SOURCE_DIR}/tests/*.h
)
file(GLOB_RECURSE qml_files CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/qml/*.qml
    ${PROJECT_SOURCE_DIR}/benchmarks/start/*.qml
    ${PROJECT_SOURCE_DIR}/docs/*.qml
    ${PROJECT_SOURCE_DIR}/gallery/*.qml
    ${PROJECT_SOURCE_DIR}/tests/*.qml
)

if(TAMBLE_CLANG_FORMAT)
    add_custom_target(format COMMAND ${TAMBLE_CLANG_FORMAT} -i ${cpp_files} COMMENT "Formatting C++" VERBATIM)
    add_custom_target(format-check COMMAND ${TAMBLE_CLANG_FORMAT} --dry-run --Werror ${cpp_files}
        COMMENT "Checking the format of C++ files" VERBATIM
    )
endif()

add_custom_target(include-check
    COMMAND ${CMAKE_COMMAND} -D CONTROL=${PROJECT_SOURCE_DIR}/control -D QML=${PROJECT_SOURCE_DIR}/qml
            -P ${PROJECT_SOURCE_DIR}/cmake/CheckIncludes.cmake
    COMMENT "Checking what the folders of control/ include, and what QML files import"
    VERBATIM
)

# qmlformat without -n: with it the members would be sorted alphabetically.
find_program(TAMBLE_QMLFORMAT qmlformat PATHS /usr/lib/qt6/bin)
add_custom_target(qml-format COMMAND ${TAMBLE_QMLFORMAT} -i ${qml_files} COMMENT "Formatting QML" VERBATIM)

# Against the built modules, as a user's own tools see them; the gallery's files where their qmldir is, which names its
# singletons. The client of a benchmark uses types of its own, which are there where it is built.
set(lint_files)
foreach(file IN LISTS qml_files)
    cmake_path(RELATIVE_PATH file BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE path)
    if(path MATCHES "^gallery/(.*)")
        if(TARGET tamble-gallery)
            list(APPEND lint_files ${PROJECT_BINARY_DIR}/gallery/Gallery/${CMAKE_MATCH_1})
        endif()
    elseif(path MATCHES "^benchmarks/start/(.*)")
        if(TARGET basic-client)
            list(APPEND lint_files ${PROJECT_BINARY_DIR}/benchmarks/start/BasicClient/${CMAKE_MATCH_1})
        endif()
    else()
        list(APPEND lint_files ${file})
    endif()
endforeach()
find_program(TAMBLE_QMLLINT qmllint PATHS /usr/lib/qt6/bin)
add_custom_target(qml-lint
    COMMAND ${CMAKE_COMMAND} -D QMLLINT=${TAMBLE_QMLLINT}
            "-DARGUMENTS=-I;${PROJECT_BINARY_DIR}/qml;-I;${PROJECT_BINARY_DIR}/gallery;-I;${PROJECT_BINARY_DIR}/benchmarks/start"
            "-DFILES=${lint_files}"
            -P ${PROJECT_SOURCE_DIR}/cmake/QmlLint.cmake
    COMMENT "Checking QML files"
    VERBATIM
)
add_dependencies(qml-lint tambleclient-control)
foreach(target IN ITEMS tamble-gallery basic-client)
    if(TARGET ${target})
        add_dependencies(qml-lint ${target})
    endif()
endforeach()

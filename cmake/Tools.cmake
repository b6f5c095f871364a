# Build targets for the source tools: format, format-check, tidy, qml-format, qml-lint.

find_program(TAMBLE_CLANG_FORMAT clang-format)
find_program(TAMBLE_CLANG_TIDY clang-tidy)
find_program(TAMBLE_RUN_CLANG_TIDY NAMES run-clang-tidy run-clang-tidy-14)

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
    ${PROJECT_SOURCE_DIR}/gallery/*.qml
    ${PROJECT_SOURCE_DIR}/tests/*.qml
)

if(TAMBLE_CLANG_FORMAT)
    add_custom_target(format COMMAND ${TAMBLE_CLANG_FORMAT} -i ${cpp_files} COMMENT "Formatting C++" VERBATIM)
    add_custom_target(format-check COMMAND ${TAMBLE_CLANG_FORMAT} --dry-run --Werror ${cpp_files}
        COMMENT "Checking the format of C++ files" VERBATIM
    )
endif()

if(TAMBLE_RUN_CLANG_TIDY)
    # The files of a folder are analysed as one: nearly all of the time goes into Qt's headers, which each would read anew.
    # Nothing here is built; the analyser takes its flags from the compile commands.
    set(analysed)
    foreach(pattern IN ITEMS asset control gallery libs)
        file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${pattern}/*.cpp)
        list(APPEND analysed ${sources})
    endforeach()
    list(FILTER analysed EXCLUDE REGEX "/RasteriseIcons.cpp$")
    # Standard C++ only, so its files are read quickly, and they use each other's names.
    set(read_alone ${PROJECT_SOURCE_DIR}/libs/tamblecommon-math/)
    list(FILTER analysed EXCLUDE REGEX "^${read_alone}")
    set(folders)
    foreach(source IN LISTS analysed)
        cmake_path(GET source PARENT_PATH folder)
        list(APPEND folders ${folder})
        string(MAKE_C_IDENTIFIER ${folder} key)
        string(APPEND content_${key} "#include \"${source}\"\n")
    endforeach()
    list(REMOVE_DUPLICATES folders)
    set(units)
    foreach(folder IN LISTS folders)
        cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE name)
        string(REPLACE "/" "-" name ${name})
        string(MAKE_C_IDENTIFIER ${folder} key)
        file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/analysed/${name}.cpp CONTENT "${content_${key}}" @ONLY)
        list(APPEND units ${PROJECT_BINARY_DIR}/analysed/${name}.cpp)
    endforeach()
    add_library(tamble-analysed OBJECT EXCLUDE_FROM_ALL ${units})
    set_target_properties(tamble-analysed PROPERTIES AUTOMOC OFF)
    foreach(target IN ITEMS tambleclient-control tamble-gallery tamble-gallery-audio tamblecommon-math-response)
        if(TARGET ${target})
            target_include_directories(tamble-analysed PRIVATE $<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>)
            target_compile_definitions(tamble-analysed PRIVATE $<TARGET_PROPERTY:${target},COMPILE_DEFINITIONS>)
            target_link_libraries(tamble-analysed PRIVATE $<TARGET_PROPERTY:${target},LINK_LIBRARIES>)
        endif()
    endforeach()
    add_custom_target(tidy
        COMMAND ${TAMBLE_RUN_CLANG_TIDY} -quiet -j 2 -p ${PROJECT_BINARY_DIR}
                "${PROJECT_BINARY_DIR}/analysed/.*" "${read_alone}.*\\.cpp$"
        COMMENT "Analysing C++ files"
        VERBATIM
    )
    add_dependencies(tidy tambleclient-control)
endif()

# qmlformat without -n: with it the members would be sorted alphabetically.
find_program(TAMBLE_QMLFORMAT qmlformat PATHS /usr/lib/qt6/bin)
add_custom_target(qml-format COMMAND ${TAMBLE_QMLFORMAT} -i ${qml_files} COMMENT "Formatting QML" VERBATIM)

# Against the built modules, as a user's own tools see them; the gallery's files where their qmldir is, which names its
# singletons.
set(lint_files)
foreach(file IN LISTS qml_files)
    cmake_path(RELATIVE_PATH file BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE path)
    if(path MATCHES "^gallery/(.*)")
        if(TARGET tamble-gallery)
            list(APPEND lint_files ${PROJECT_BINARY_DIR}/gallery/Gallery/${CMAKE_MATCH_1})
        endif()
    else()
        list(APPEND lint_files ${file})
    endif()
endforeach()
find_program(TAMBLE_QMLLINT qmllint PATHS /usr/lib/qt6/bin)
add_custom_target(qml-lint
    COMMAND ${CMAKE_COMMAND} -D QMLLINT=${TAMBLE_QMLLINT}
            "-DARGUMENTS=-I;${PROJECT_BINARY_DIR}/qml;-I;${PROJECT_BINARY_DIR}/gallery" "-DFILES=${lint_files}"
            -P ${PROJECT_SOURCE_DIR}/cmake/QmlLint.cmake
    COMMENT "Checking QML files"
    VERBATIM
)
add_dependencies(qml-lint tambleclient-control)
if(TARGET tamble-gallery)
    add_dependencies(qml-lint tamble-gallery)
endif()

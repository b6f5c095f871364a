# The build target tidy: clang-tidy over the product.

find_program(TAMBLE_RUN_CLANG_TIDY NAMES run-clang-tidy run-clang-tidy-14)
if(NOT TAMBLE_RUN_CLANG_TIDY)
    return()
endif()

# The files of a folder are analysed as one: nearly all of the time goes into Qt's headers, which each would read anew.
# The target is never built; the analyser takes its flags from the compile commands.
set(analysed)
foreach(folder IN ITEMS asset control gallery libs)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp)
    list(APPEND analysed ${sources})
endforeach()
list(FILTER analysed EXCLUDE REGEX "/RasteriseIcons.cpp$")
# Standard C++ only, so its files are read quickly, and they use each other's names.
set(read_alone ${PROJECT_SOURCE_DIR}/libs/tamblecommon-math/)
list(FILTER analysed EXCLUDE REGEX "^${read_alone}")
foreach(source IN LISTS analysed)
    cmake_path(GET source PARENT_PATH folder)
    cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
    string(REPLACE "/" "-" group ${folder})
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group})
endforeach()

add_library(tamble-analysed OBJECT EXCLUDE_FROM_ALL ${analysed})
set_target_properties(tamble-analysed PROPERTIES AUTOMOC OFF UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
foreach(target IN ITEMS tambleclient-control tamble-gallery tamble-gallery-audio
        tamble-gallery-decoder tamble-gallery-installation tamblecommon-math-response)
    if(TARGET ${target})
        target_include_directories(tamble-analysed PRIVATE $<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>)
        target_compile_definitions(tamble-analysed PRIVATE $<TARGET_PROPERTY:${target},COMPILE_DEFINITIONS>)
        target_link_libraries(tamble-analysed PRIVATE $<TARGET_PROPERTY:${target},LINK_LIBRARIES>)
    endif()
endforeach()

add_custom_target(tidy
    COMMAND ${TAMBLE_RUN_CLANG_TIDY} -quiet -j 2 -p ${PROJECT_BINARY_DIR}
            -extra-arg=-Wno-unused-command-line-argument "/tamble-analysed.dir/Unity/" "${read_alone}.*\\.cpp$"
    COMMENT "Analysing C++ files"
    VERBATIM
)
add_dependencies(tidy tambleclient-control)

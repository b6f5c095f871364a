# Resources are compressed with zlib, which every Qt can read; Qt's functions would take zstd where they find it.
set(QT_FEATURE_zstd OFF)

# tamble_relax_generated_code(TARGET): the C++ that Qt's QML compiler makes of QML files shadows and converts freely;
# the project's warnings are for its own code. A few files are compiled at once, since each takes seconds to read the
# same headers; which ones, a digit of their names' hash says, so that a new file changes one lot only. Call it after the
# target's QML files are known.
function(tamble_relax_generated_code target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/.*\\.cpp$")
    set_source_files_properties(${sources} TARGET_DIRECTORY ${target} PROPERTIES HEADER_FILE_ONLY ON)
    set(lots)
    foreach(source IN LISTS sources)
        cmake_path(GET source FILENAME name)
        string(MD5 hash ${name})
        string(SUBSTRING ${hash} 0 1 lot)
        list(APPEND lots ${lot})
        list(APPEND together_${lot} ${source})
    endforeach()
    list(REMOVE_DUPLICATES lots)
    foreach(lot IN LISTS lots)
        list(TRANSFORM together_${lot} REPLACE "(.+)" "#include \"\\1\"\n" OUTPUT_VARIABLE lines)
        string(JOIN "" content ${lines})
        set(file ${PROJECT_BINARY_DIR}/united/${target}-qml-${lot}.cpp)
        file(CONFIGURE OUTPUT ${file} CONTENT "${content}" @ONLY)
        set_source_files_properties(${file} TARGET_DIRECTORY ${target} PROPERTIES
            COMPILE_OPTIONS -w
            OBJECT_DEPENDS "${together_${lot}}"
            SKIP_AUTOMOC ON
            SKIP_UNITY_BUILD_INCLUSION ON
        )
        target_sources(${target} PRIVATE ${file})
    endforeach()
endfunction()

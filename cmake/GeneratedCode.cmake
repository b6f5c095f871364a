# Resources are compressed with zlib, which every Qt can read; Qt's functions would take zstd where they find it.
set(QT_FEATURE_zstd OFF)

# tamble_relax_generated_code(TARGET): the C++ that Qt's QML compiler makes of QML files shadows and converts freely;
# the project's warnings are for its own code. A few files are compiled at once, since each takes seconds to read the
# same headers. Call it after the target's QML files are known.
function(tamble_relax_generated_code target)
    set(files_at_once 8)

    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/.*\\.cpp$")
    set(number 0)
    foreach(source IN LISTS sources)
        math(EXPR group "${number} / ${files_at_once}")
        set_source_files_properties(${source} TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP qml${group})
        math(EXPR number "${number} + 1")
    endforeach()

    # The option -w for single files would keep them apart.
    set(before)
    foreach(warning IN ITEMS all extra pedantic shadow conversion sign-conversion float-conversion)
        string(APPEND before "#pragma GCC diagnostic ignored \"-W${warning}\"\n")
    endforeach()
    set_target_properties(${target} PROPERTIES
        UNITY_BUILD ON
        UNITY_BUILD_MODE GROUP
        UNITY_BUILD_CODE_BEFORE_INCLUDE "${before}"
    )
endfunction()

# Resources are compressed with zlib, which every Qt can read; Qt's functions would take zstd where they find it.
set(QT_FEATURE_zstd OFF)

# tamble_relax_generated_code(TARGET): the C++ that Qt's QML compiler makes of QML files shadows and converts freely;
# the project's warnings are for its own code. Call it after the target's QML files are known.
function(tamble_relax_generated_code target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/.*\\.cpp$")
    set_source_files_properties(${sources} TARGET_DIRECTORY ${target} PROPERTIES COMPILE_OPTIONS -w)
endfunction()

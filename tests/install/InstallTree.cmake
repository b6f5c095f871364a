# A project of a user's, built, checked, installed and run against an installed tree of the module.

file(REMOVE_RECURSE ${SCRATCH})
set(prefix ${SCRATCH}/prefix)
set(consumer ${SCRATCH}/consumer)

# Runs a command that must succeed and say nothing on the error channel.
function(run_quietly)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE messages)
    if(NOT result EQUAL 0 OR NOT messages STREQUAL "")
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nexit code ${result}\n${output}\n${messages}")
    endif()
endfunction()

# The tree stands elsewhere than it was installed: packages are unpacked where the user wants.
foreach(component IN ITEMS runtime development gallery)
    run_quietly(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix}-packed --component ${component})
endforeach()
file(RENAME ${prefix}-packed ${prefix})

run_quietly(${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${prefix}/${LIBRARY_DIRECTORY}/pkgconfig
    pkg-config --exists --print-errors tambleclient-control
)
run_quietly(${QML_TOOL} -I ${prefix}/${QML_ROOT} ${PAGE})
run_quietly(${prefix}/bin/tamble-gallery --help)

run_quietly(${CMAKE_COMMAND} -S ${CONSUMER} -B ${consumer} -G Ninja --install-prefix ${consumer}/installed
    -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER} -D CMAKE_BUILD_TYPE=Debug
)
run_quietly(${CMAKE_COMMAND} --build ${consumer} --target all importing_qmllint)
run_quietly(${CMAKE_COMMAND} --install ${consumer})
run_quietly(${consumer}/installed/bin/linking)
run_quietly(${consumer}/installed/bin/importing)

file(REMOVE_RECURSE ${SCRATCH})
set(prefix ${SCRATCH}/prefix)

# Runs a command that must succeed and say nothing on the error channel.
function(run_quietly)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE messages)
    if(NOT result EQUAL 0 OR NOT messages STREQUAL "")
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nexit code ${result}\n${output}\n${messages}")
    endif()
endfunction()

run_quietly(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})

run_quietly(${QML_TOOL} -I ${prefix}/${LIBRARY_DIRECTORY}/qt6/qml ${PAGE})

run_quietly(${CMAKE_COMMAND} -S ${CONSUMER} -B ${SCRATCH}/consumer -G Ninja
    -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
)
run_quietly(${CMAKE_COMMAND} --build ${SCRATCH}/consumer)
run_quietly(${SCRATCH}/consumer/consumer)

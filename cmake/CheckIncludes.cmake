# cmake -D CONTROL=DIR -P CheckIncludes.cmake
#
# Fails on a file in control/ that includes one of a folder which stands after its own in the list of folders.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/ControlFolders.cmake)

# The place of a file's folder in the list, that of the module frame behind all others.
function(rank_of file result)
    cmake_path(GET file PARENT_PATH folder)
    list(FIND TAMBLE_CONTROL_FOLDERS "${folder}" rank)
    if(folder STREQUAL "")
        list(LENGTH TAMBLE_CONTROL_FOLDERS rank)
    elseif(rank EQUAL -1)
        message(FATAL_ERROR "control/${folder} is not in the list of folders")
    endif()
    set(${result} ${rank} PARENT_SCOPE)
endfunction()

set(findings 0)
file(GLOB_RECURSE files RELATIVE ${CONTROL} ${CONTROL}/*.cpp ${CONTROL}/*.h)
foreach(file IN LISTS files)
    rank_of(${file} own)
    file(STRINGS ${CONTROL}/${file} includes REGEX "^#include \"")
    foreach(line IN LISTS includes)
        string(REGEX REPLACE "^#include \"(.*)\".*" "\\1" included "${line}")
        if(NOT EXISTS ${CONTROL}/${included})
            continue()
        endif()
        rank_of(${included} other)
        if(other GREATER own)
            message("control/${file} includes ${included}, which stands above it")
            math(EXPR findings "${findings} + 1")
        endif()
    endforeach()
endforeach()
if(findings)
    message(FATAL_ERROR "${findings} includes against the order of the folders")
endif()

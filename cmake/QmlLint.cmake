# cmake -D QMLLINT=… -D "ARGUMENTS=-I;dir;…" -D "FILES=a.qml;…" -P QmlLint.cmake
#
# Runs qmllint and fails on every warning but one kind: the context properties `theme` and `maximumTouchPoints`, which
# pages may count on, are unknown to it and reported as unqualified.

cmake_minimum_required(VERSION 3.25)

set(allowed theme maximumTouchPoints)

# One run in twenty of Qt 6.4's qmllint over many files crashes before it reports anything.
foreach(attempt RANGE 1 5)
    execute_process(COMMAND ${QMLLINT} --json - ${ARGUMENTS} ${FILES} OUTPUT_VARIABLE report ERROR_VARIABLE messages)
    string(JSON file_count ERROR_VARIABLE no_report LENGTH "${report}" files)
    if(NOT no_report)
        break()
    endif()
endforeach()
if(no_report)
    message(FATAL_ERROR "qmllint gave no report\n${messages}${report}")
endif()

set(findings 0)
math(EXPR last_file "${file_count} - 1")
foreach(f RANGE ${last_file})
    string(JSON name GET "${report}" files ${f} filename)
    string(JSON warning_count LENGTH "${report}" files ${f} warnings)
    if(warning_count EQUAL 0)
        continue()
    endif()
    file(READ ${name} text)
    # Places are counted in characters, but CMake cuts texts by bytes.
    string(REGEX REPLACE "[^\t\n -~]+" "?" text "${text}")
    math(EXPR last_warning "${warning_count} - 1")
    foreach(w RANGE ${last_warning})
        foreach(key IN ITEMS message line type)
            # Findings about a file as a whole have no line.
            string(JSON ${key} ERROR_VARIABLE none GET "${report}" files ${f} warnings ${w} ${key})
        endforeach()
        if(message STREQUAL "Unqualified access")
            string(JSON offset GET "${report}" files ${f} warnings ${w} charOffset)
            string(JSON length GET "${report}" files ${f} warnings ${w} length)
            string(SUBSTRING "${text}" ${offset} ${length} word)
            string(APPEND message ": ${word}")
            if(word IN_LIST allowed)
                continue()
            endif()
        endif()
        if(NOT type STREQUAL "info")
            message("${name}:${line}: ${message}")
            math(EXPR findings "${findings} + 1")
        endif()
    endforeach()
endforeach()

if(findings)
    message(FATAL_ERROR "${findings} findings in QML files")
endif()

# Every page gives a picture per theme, and the gallery says nothing while it draws them.

file(REMOVE_RECURSE ${DIRECTORY})
execute_process(COMMAND ${GALLERY} --screenshot ${DIRECTORY} ERROR_VARIABLE messages RESULT_VARIABLE result)
if(NOT result EQUAL 0 OR NOT messages STREQUAL "")
    message(FATAL_ERROR "exit code ${result}, messages:\n${messages}")
endif()

file(GLOB pages ${PAGES}/*.qml)
list(LENGTH pages page_count)
math(EXPR expected "2 * ${page_count}")
file(GLOB pictures ${DIRECTORY}/*-light.png ${DIRECTORY}/*-dark.png)
list(LENGTH pictures picture_count)
if(NOT picture_count EQUAL expected)
    message(FATAL_ERROR "${picture_count} pictures instead of ${expected}")
endif()

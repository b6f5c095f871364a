# Every page gives a picture in each theme, and nothing is said while they are drawn: no QML warning, and no key missing
# in a sheet but the one that the light sheet is known to leave out.

file(REMOVE_RECURSE ${DIRECTORY})
execute_process(COMMAND ${GALLERY} --screenshot ${DIRECTORY}
    OUTPUT_VARIABLE summary ERROR_VARIABLE messages RESULT_VARIABLE result
)
string(REGEX REPLACE "[^\n]*WARN: Property indicator-color not found \\([^\n]*RMeter[^\n]*\\)\n" "" messages "${messages}")
if(NOT result EQUAL 0 OR NOT messages STREQUAL "")
    message(FATAL_ERROR "exit code ${result}, messages:\n${messages}")
endif()

set(themes light dark contrast-light contrast-dark)
file(GLOB pages ${PAGES}/pages/*.qml ${PAGES}/festival/pages/*.qml)
list(LENGTH pages page_count)
list(LENGTH themes theme_count)
math(EXPR expected "${page_count} * ${theme_count}")
if(NOT summary STREQUAL "${expected} screenshots: ${page_count} pages in ${theme_count} themes\n")
    message(FATAL_ERROR "unexpected summary: ${summary}")
endif()

file(GLOB first_pictures ${DIRECTORY}/*-contrast-dark.png)
foreach(first IN LISTS first_pictures)
    string(REPLACE "-contrast-dark.png" "" page ${first})
    set(hashes)
    foreach(theme IN LISTS themes)
        file(SHA256 ${page}-${theme}.png hash)
        list(APPEND hashes ${hash})
    endforeach()
    list(REMOVE_DUPLICATES hashes)
    list(LENGTH hashes different)
    if(NOT different EQUAL theme_count)
        message(FATAL_ERROR "${page}: two themes give the same picture")
    endif()
endforeach()
list(LENGTH first_pictures picture_count)
if(NOT picture_count EQUAL page_count)
    message(FATAL_ERROR "pictures of ${picture_count} pages instead of ${page_count}")
endif()

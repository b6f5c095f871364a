# Build target `api-pages`: docs/api of the build tree, a page for each QML type and an index by family, with pictures of
# what can be seen in the four themes. The pictures are drawn on a virtual display.

find_program(TAMBLE_PYTHON python3)
find_program(TAMBLE_QML_TOOL qml PATHS /usr/lib/qt6/bin NO_DEFAULT_PATH)
find_program(XVFB_RUN xvfb-run)
if(NOT TAMBLE_PYTHON OR NOT TAMBLE_QML_TOOL OR NOT XVFB_RUN)
    return()
endif()

set(reference ${PROJECT_SOURCE_DIR}/docs/reference)
set(pages ${PROJECT_BINARY_DIR}/docs/api)
add_custom_target(api-pages
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${pages}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${pages}/pictures
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=xcb LIBGL_ALWAYS_SOFTWARE=1
            ${XVFB_RUN} -a -s "-screen 0 1600x1200x24"
            ${TAMBLE_QML_TOOL} -I ${PROJECT_BINARY_DIR}/qml ${reference}/pictures/Pictures.qml -- ${pages}/pictures
    COMMAND ${TAMBLE_PYTHON} -B ${reference}/api_pages.py
            ${PROJECT_SOURCE_DIR} ${TAMBLE_QML_MODULE_DIRECTORY} ${pages}
    COMMENT "Writing the reference pages"
    VERBATIM
)
add_dependencies(api-pages tambleclient-control)

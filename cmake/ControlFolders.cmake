# The folders of control/, from what everybody may use to what uses the most. A file includes what lies in its own folder
# and in those before it; the build target `include-check` says where one does not. The module frame in control/ itself
# comes last and uses them all.
set(TAMBLE_CONTROL_FOLDERS
    base
    scale
    scenegraph
    style/language
    style/values
    style/resolution
    style/loading
    style
    plot
    handles
    bodeplot/filters
    bodeplot/handles
    bodeplot/frame
    bodeplot/response
    bodeplot
    dynamics
    fader
    meter
    controls
    menus
    fields
    cells
    pointer
    screen
    models
    workspace
)

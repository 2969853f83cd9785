# The rooms, from the lowest to the highest: a room may only include what is below it, that is, earlier in this list.
# The libraries are linked in this order, and the include check (tools/roomcheck) enforces it.
set(TESSARY_ROOMS
    vcl/system
    vcl/classes
    vcl/graphics
    vcl/menus
    vcl/controls
    vcl/forms
    vcl/stdctrls
    vcl/extctrls
    vcl/buttons
    vcl/comctrls
    vcl/grids
    vcl/dialogs
    vcl/registry
    vcl/printers
    vcl/design
    common
    toolbar
    menus
    controls
    assistant
    design)

# The rooms that need no windows.h, and the tools that convert things for the build itself.
set(TESSARY_PORTABLE_ROOMS vcl/system vcl/classes)
set(TESSARY_HOST_TOOLS formconv glyphpack roomcheck)

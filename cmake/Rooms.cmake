# The rooms of the house, in the order of their dependencies: a room may only include what stands above it.
# This list is what the libraries are linked by, and what the include check (tools/roomcheck) enforces.
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

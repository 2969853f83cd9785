# Applications and what is embedded in them. This file is part of the installed package.
include_guard()

# tessary_add_application(NAME [WIN32] SOURCES... [FORMS FORM.dfm...] [ICON SHEET] [BITMAPS SHEET...] [CURSORS SHEET...])
# A program with the library, its forms, its pixel art and the manifest: common controls 6, UTF-8, sharp on scaled screens.
function(tessary_add_application name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WIN32" "ICON" "FORMS;BITMAPS;CURSORS")
    set(gui)
    if(arg_WIN32)
        set(gui WIN32)
    endif()
    add_executable(${name} ${gui} ${arg_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE Tessary::tessary)
    tessary_add_manifest(${name})
    tessary_add_forms(${name} ${arg_FORMS})
    tessary_add_bitmaps(${name} ${arg_BITMAPS})
    tessary_add_cursors(${name} ${arg_CURSORS})
    if(arg_ICON)
        tessary_draw_glyphs(${name} ${arg_ICON} ico --icon)
        tessary_add_resource(${name} MAINICON ICON ${drawn})
    endif()
endfunction()

function(tessary_add_manifest target)
    get_property(folder GLOBAL PROPERTY TESSARY_RESOURCES)
    target_sources(${target} PRIVATE ${folder}/application.rc)
    set_property(SOURCE ${folder}/application.rc PROPERTY OBJECT_DEPENDS ${folder}/application.manifest)
endfunction()

# tessary_add_forms(TARGET FORM.dfm...) embeds each form under the name of its class, where LoadForm finds it, with a map to
# the lines of its text for messages of errors.
function(tessary_add_forms target)
    foreach(form IN LISTS ARGN)
        cmake_path(ABSOLUTE_PATH form)
        cmake_path(GET form STEM unit)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${form})
        tessary_form_class(${form} class)
        set(binary ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources/${unit}.bin)
        set(lines ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources/${unit}.lines)
        file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources)
        add_custom_command(
            OUTPUT ${binary} ${lines}
            COMMAND Tessary::host_formconv --binary --lines ${lines} ${form} ${binary}
            DEPENDS ${form} Tessary::host_formconv
            COMMENT "Compiling form ${unit}"
            VERBATIM)
        tessary_add_resource(${target} ${class} RCDATA ${binary})
        tessary_add_resource(${target} ${class} FORMLINES ${lines})
    endforeach()
endfunction()

# Sets RESULT to the name of the class that a form, in text or binary, is of; in upper case.
function(tessary_form_class form result)
    file(STRINGS ${form} heading LIMIT_COUNT 1 REGEX "^ *(object|inherited|inline) ")
    file(READ ${form} bytes LIMIT 600 HEX)
    set(class)
    if(bytes MATCHES "^(ff.*)?54504630(f.)?(..)(.*)") # A resource header, TPF0, flags, a length and the name.
        math(EXPR size "2 * 0x${CMAKE_MATCH_3}")
        string(SUBSTRING ${CMAKE_MATCH_4} 0 ${size} name)
        string(REGEX MATCHALL ".." codes "${name}")
        foreach(code IN LISTS codes)
            math(EXPR code 0x${code})
            string(ASCII ${code} character)
            string(APPEND class ${character})
        endforeach()
    elseif(heading MATCHES "^ *[a-z]+ +([A-Za-z0-9_]+: *)?([A-Za-z0-9_]+)")
        set(class ${CMAKE_MATCH_2})
    else()
        message(FATAL_ERROR "${form} is no form.")
    endif()
    string(TOUPPER ${class} class)
    set(${result} ${class} PARENT_SCOPE)
endfunction()

# tessary_add_bitmaps(TARGET SHEET.glyphs...) embeds sheets of pixel art as bitmaps with their file names in upper case.
# A sheet that names its glyphs also becomes a header, "glyphs/SHEET.h".
function(tessary_add_bitmaps target)
    foreach(sheet IN LISTS ARGN)
        tessary_draw_glyphs(${target} ${sheet} bmp)
        tessary_add_resource(${target} ${resource} BITMAP ${drawn})
    endforeach()
endfunction()

function(tessary_add_cursors target)
    foreach(sheet IN LISTS ARGN)
        tessary_draw_glyphs(${target} ${sheet} cur --cursor)
        tessary_add_resource(${target} ${resource} CURSOR ${drawn})
    endforeach()
endfunction()

# Has SHEET drawn as a file of the given type. Sets `drawn` to its path and `resource` to the resource's name.
function(tessary_draw_glyphs target sheet extension)
    cmake_path(ABSOLUTE_PATH sheet)
    cmake_path(GET sheet STEM stem)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources)
    set(file ${folder}/glyphs/${stem}.${extension})
    set(header)
    file(STRINGS ${sheet} enumeration LIMIT_COUNT 1 REGEX "^enum")
    if(enumeration AND extension STREQUAL bmp)
        set(header ${folder}/glyphs/${stem}.h)
        target_sources(${target} PRIVATE ${header})
        target_include_directories(${target} PRIVATE ${folder})
    endif()
    file(MAKE_DIRECTORY ${folder}/glyphs)
    add_custom_command(
        OUTPUT ${file} ${header}
        COMMAND Tessary::host_glyphpack ${ARGN} ${file} ${sheet} ${header}
        DEPENDS ${sheet} Tessary::host_glyphpack
        COMMENT "Drawing glyphs ${stem}"
        VERBATIM)
    set(drawn ${file} PARENT_SCOPE)
    string(TOUPPER ${stem} resource)
    set(resource ${resource} PARENT_SCOPE)
endfunction()

# Embeds FILE in a program; or in every program that links a static library, which would lose a resource of its own.
function(tessary_add_resource target name type file)
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources/${name}.${type}.rc)
    file(CONFIGURE OUTPUT ${script} CONTENT "${name} ${type} \"${file}\"\n")
    tessary_add_resource_script(${target} ${script})
    set_property(SOURCE ${script} PROPERTY OBJECT_DEPENDS ${file})
endfunction()

function(tessary_add_resource_script target script)
    get_target_property(type ${target} TYPE)
    if(NOT type STREQUAL STATIC_LIBRARY)
        target_sources(${target} PRIVATE ${script})
        return()
    endif()
    if(NOT TARGET ${target}_resources)
        add_library(${target}_resources OBJECT)
        target_link_libraries(${target} INTERFACE $<TARGET_OBJECTS:$<TARGET_NAME:${target}_resources>>)
    endif()
    target_sources(${target}_resources PRIVATE ${script})
endfunction()

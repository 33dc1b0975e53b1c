# Bitmaps from SVG: <name>.png and, for screens of twice the density, <name>@2x.png.

find_program(ZEL_RSVG_CONVERT rsvg-convert)
if(NOT ZEL_RSVG_CONVERT)
    message(FATAL_ERROR "rsvg-convert, which renders the artwork, was not found. "
                        "On Debian it is in the package librsvg2-bin: apt install librsvg2-bin. "
                        "If it is installed elsewhere, set ZEL_RSVG_CONVERT to its path.")
endif()

# zel_render_svg(variable directory svg...): the rules that make the bitmaps in the directory; the variable gets their paths.
function(zel_render_svg variable directory)
    file(MAKE_DIRECTORY ${directory}) # rsvg-convert does not create it
    set(bitmaps)
    foreach(source IN LISTS ARGN)
        cmake_path(GET source STEM LAST_ONLY name)
        set(normal ${directory}/${name}.png)
        set(double ${directory}/${name}@2x.png)
        add_custom_command(
            OUTPUT ${normal} ${double}
            COMMAND ${ZEL_RSVG_CONVERT} --format png --output ${normal} ${source}
            COMMAND ${ZEL_RSVG_CONVERT} --format png --zoom 2 --output ${double} ${source}
            DEPENDS ${source}
            COMMENT "Rendering ${name}"
            VERBATIM)
        list(APPEND bitmaps ${normal} ${double})
    endforeach()
    set(${variable} ${bitmaps} PARENT_SCOPE)
endfunction()

# zel_svg_resource(variable name prefix svg...): the same, packed as a Qt resource; the variable gets its C++ file.
function(zel_svg_resource variable name prefix)
    set(directory ${CMAKE_CURRENT_BINARY_DIR}/${name})
    zel_render_svg(bitmaps ${directory} ${ARGN})
    set(entries)
    foreach(bitmap IN LISTS bitmaps)
        cmake_path(GET bitmap FILENAME file)
        string(APPEND entries "    <file>${file}</file>\n")
    endforeach()
    # rcc by hand: AUTORCC wants the files of a list to exist before the first build.
    set(list ${directory}/${name}.qrc)
    file(CONFIGURE OUTPUT ${list} @ONLY CONTENT "<RCC>
  <qresource prefix=\"@prefix@\">
@entries@  </qresource>
</RCC>
")
    set(code ${CMAKE_CURRENT_BINARY_DIR}/rcc_${name}.cpp)
    add_custom_command(
        OUTPUT ${code}
        COMMAND Qt${ZEL_QT_MAJOR}::rcc --name ${name} --output ${code} ${list}
        DEPENDS ${list} ${bitmaps}
        COMMENT "Packing ${name}"
        VERBATIM)
    set(${variable} ${code} PARENT_SCOPE)
endfunction()

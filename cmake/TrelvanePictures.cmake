# trelvane_render_pictures(<out list variable> <source dir> <output dir>)
#
# Renders every SVG file of <source dir> to <output dir>/<name>.png, in the pixel
# size that the width and height of its svg element give, and sets the variable
# to the list of the PNG files. They are made by the targets of the calling
# directory that list them as sources or dependencies. Needs RSVG_CONVERT.
function(trelvane_render_pictures out_list source_dir output_dir)
    file(GLOB sources CONFIGURE_DEPENDS "${source_dir}/*.svg")
    if(NOT sources)
        message(FATAL_ERROR "${source_dir} holds no SVG pictures.")
    endif()
    # A changed size must reach the command line below.
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${sources})
    file(MAKE_DIRECTORY "${output_dir}")

    set(pictures)
    foreach(source IN LISTS sources)
        trelvane_picture_size(width height "${source}")
        get_filename_component(name "${source}" NAME_WE)
        set(picture "${output_dir}/${name}.png")
        add_custom_command(
            OUTPUT "${picture}"
            COMMAND "${RSVG_CONVERT}" --width=${width} --height=${height} "--output=${picture}" "${source}"
            DEPENDS "${source}"
            COMMENT "Rendering ${name}.png (${width} x ${height})"
            VERBATIM)
        list(APPEND pictures "${picture}")
    endforeach()
    set(${out_list} "${pictures}" PARENT_SCOPE)
endfunction()

# Sets the two variables to the pixel size that an SVG file's svg element gives.
function(trelvane_picture_size out_width out_height source)
    file(READ "${source}" text)
    string(REGEX MATCH "<svg[ \t\r\n][^>]*>" element "${text}")
    foreach(side IN ITEMS width height)
        if(NOT element MATCHES "[ \t\r\n]${side}=\"([1-9][0-9]*)\"")
            message(FATAL_ERROR "${source} has no ${side} in whole pixels.")
        endif()
        set(${side} ${CMAKE_MATCH_1})
    endforeach()
    set(${out_width} ${width} PARENT_SCOPE)
    set(${out_height} ${height} PARENT_SCOPE)
endfunction()

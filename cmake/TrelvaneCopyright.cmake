# The copyright file of an installation: our own part, and the licences of what the programs carry, each as its package
# brings it.

# trelvane_paragraph(<out variable> <text>): as Debian's copyright files want it, each line indented by a blank, an
# empty one marked by a dot.
function(trelvane_paragraph out text)
    string(STRIP "${text}" text)
    string(REGEX REPLACE "[ \t\r]*\n" "\n" text "${text}")
    string(REPLACE "\n" "\n " text " ${text}")
    string(REGEX REPLACE "\n +\n" "\n .\n" text "${text}")
    string(REGEX REPLACE "\n +\n" "\n .\n" text "${text}")
    set(${out} "${text}" PARENT_SCOPE)
endfunction()

# The fonts' licence: OFL.txt of TRELVANE_LICENCES_DIR, else a paragraph of the package's copyright file. Empty, with a
# warning, where it is missing: all but packages can be made without.
function(trelvane_read_font_licence out)
    set(${out} "" PARENT_SCOPE)
    set(file /usr/share/doc/fonts-mplus/copyright)
    if(TRELVANE_LICENCES_DIR)
        set(file ${TRELVANE_LICENCES_DIR}/OFL.txt)
    endif()
    if(NOT EXISTS "${file}")
        message(WARNING "No packages are made, and no copyright file is installed: the fonts' licence is missing, "
            "${file}. Install it with: apt-get install fonts-mplus, or name a folder of LGPL.txt, BSD.txt and OFL.txt "
            "with -DTRELVANE_LICENCES_DIR=")
        return()
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    file(READ "${file}" text)
    if(TRELVANE_LICENCES_DIR)
        trelvane_paragraph(text "${text}")
    else()
        set(heading "\nLicense: OFL-1.1\n ")
        string(FIND "${text}" "${heading}" begin)
        if(begin LESS 0)
            message(WARNING "No packages are made, and no copyright file is installed: ${file} holds no text of the "
                "fonts' licence. Name a folder of LGPL.txt, BSD.txt and OFL.txt with -DTRELVANE_LICENCES_DIR=")
            return()
        endif()
        string(LENGTH "${heading}" length)
        math(EXPR begin "${begin} + ${length} - 1")
        string(SUBSTRING "${text}" ${begin} -1 text)
        string(FIND "${text}" "\n\n" end)
        string(SUBSTRING "${text}" 0 ${end} text)
    endif()
    set(${out} "${text}" PARENT_SCOPE)
endfunction()

# trelvane_write_copyright(<out variable> <file>): call it after the resources, which fetch the script compiler where it
# is wanted. Sets the variable to whether there is such a file.
function(trelvane_write_copyright out output)
    trelvane_read_font_licence(font_licence)
    if(NOT font_licence)
        set(${out} OFF PARENT_SCOPE)
        return()
    endif()
    set(${out} ON PARENT_SCOPE)
    set(licences "License: OFL-1.1\n${font_licence}")
    set(compiler "")
    set(compiler_licence ${CMAKE_BINARY_DIR}/npm/node_modules/coffee-script/LICENSE)
    if(TRELVANE_WEB_ENGINE AND EXISTS ${compiler_licence})
        file(READ ${compiler_licence} text)
        string(REGEX MATCH "Copyright \\(c\\) ([^\n]+)" notice "${text}")
        set(holder ${CMAKE_MATCH_1})
        string(REPLACE "${notice}" "" text "${text}")
        trelvane_paragraph(text "${text}")
        string(CONCAT compiler "Files: coffee-script.js\nCopyright: ${holder}\nLicense: Expat\n"
            "Comment: The script compiler, carried inside of the programs.\n\n")
        string(PREPEND licences "License: Expat\n${text}\n\n")
    endif()
    file(READ ${CMAKE_SOURCE_DIR}/packaging/copyright text)
    file(GENERATE OUTPUT ${output} CONTENT "${text}\n${compiler}${licences}\n")
endfunction()

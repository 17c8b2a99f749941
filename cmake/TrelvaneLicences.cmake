# The licence texts that the program shows: LGPL.txt and BSD.txt of TRELVANE_LICENCES_DIR, else the system's own copies
# where it has them.
set(TRELVANE_LICENCES_DIR "" CACHE PATH "Folder of LGPL.txt, BSD.txt and OFL.txt, empty for Debian's own copies")

# Where Debian has the LGPL, and Qt's copyright file with the BSD notice of its examples.
set(debian_lgpl /usr/share/common-licenses/LGPL-3)
set(debian_qt_copyright /usr/share/doc/qtdeclarative5-dev/copyright)

# trelvane_add_licences(<collection> <folder in it>)
function(trelvane_add_licences collection folder)
    if(TRELVANE_LICENCES_DIR)
        foreach(name LGPL.txt BSD.txt)
            if(NOT EXISTS "${TRELVANE_LICENCES_DIR}/${name}")
                message(FATAL_ERROR "The licence text ${name} is missing in TRELVANE_LICENCES_DIR, "
                    "${TRELVANE_LICENCES_DIR}; docs/windows.md says what belongs there.")
            endif()
            trelvane_resource(${collection} ${folder}/${name} ${TRELVANE_LICENCES_DIR}/${name})
        endforeach()
        return()
    endif()
    foreach(pair base-files=${debian_lgpl} qtdeclarative5-dev=${debian_qt_copyright})
        string(REGEX MATCH "^([^=]+)=(.+)$" pair "${pair}")
        set(file ${CMAKE_MATCH_2})
        if(NOT EXISTS "${file}")
            message(FATAL_ERROR "The licence text ${file} is missing. Install it with: apt-get install "
                "${CMAKE_MATCH_1}, or name a folder of LGPL.txt, BSD.txt and OFL.txt with -DTRELVANE_LICENCES_DIR=")
        endif()
    endforeach()
    trelvane_resource(${collection} ${folder}/LGPL.txt ${debian_lgpl})

    # The notice is one paragraph of the file, each line of it indented by a
    # blank, an empty one marked by a dot.
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${debian_qt_copyright})
    file(READ "${debian_qt_copyright}" text)
    string(FIND "${text}" "License: BSD-3-clause\n You may use this file" begin)
    if(begin LESS 0)
        message(FATAL_ERROR "${debian_qt_copyright} holds no BSD notice of Qt's examples.")
    endif()
    string(SUBSTRING "${text}" ${begin} -1 text)
    string(FIND "${text}" "\n\n" end)
    string(SUBSTRING "${text}" 0 ${end} text)
    string(REPLACE "License: BSD-3-clause\n" "\n" text "${text}")
    string(REPLACE "\n ." "\n" text "${text}")
    string(REPLACE "\n " "\n" text "${text}")
    string(STRIP "${text}" text)
    set(notice ${CMAKE_CURRENT_BINARY_DIR}/BSD.txt)
    file(GENERATE OUTPUT ${notice} CONTENT "${text}\n")
    trelvane_resource(${collection} ${folder}/BSD.txt ${notice})
endfunction()

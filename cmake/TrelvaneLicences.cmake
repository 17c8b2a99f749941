# The licence texts that the program shows are the system's own copies.
set(TRELVANE_LGPL_FILE /usr/share/common-licenses/LGPL-3 CACHE FILEPATH
    "Text of the GNU Lesser General Public License, version 3")
set(TRELVANE_QT_COPYRIGHT_FILE /usr/share/doc/qtdeclarative5-dev/copyright CACHE FILEPATH
    "Qt's copyright file, with the BSD notice of its examples")

# trelvane_add_licences(<collection> <folder in it>)
function(trelvane_add_licences collection folder)
    if(NOT EXISTS "${TRELVANE_LGPL_FILE}")
        message(FATAL_ERROR "The text of the LGPL is missing. Install it with: "
            "apt-get install base-files, or name it with -DTRELVANE_LGPL_FILE=")
    endif()
    if(NOT EXISTS "${TRELVANE_QT_COPYRIGHT_FILE}")
        message(FATAL_ERROR "Qt's copyright file is missing. Install it with: "
            "apt-get install qtdeclarative5-dev, or name it with -DTRELVANE_QT_COPYRIGHT_FILE=")
    endif()
    trelvane_resource(${collection} ${folder}/LGPL.txt ${TRELVANE_LGPL_FILE})

    # The notice is one paragraph of the file, each line of it indented by a
    # blank, an empty one marked by a dot.
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${TRELVANE_QT_COPYRIGHT_FILE})
    file(READ "${TRELVANE_QT_COPYRIGHT_FILE}" text)
    string(FIND "${text}" "License: BSD-3-clause\n You may use this file" begin)
    if(begin LESS 0)
        message(FATAL_ERROR "${TRELVANE_QT_COPYRIGHT_FILE} holds no BSD notice of Qt's examples.")
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

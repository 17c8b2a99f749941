# Finds what the build needs from outside. A missing thing stops the configure
# step with one line that says what to install.
function(trelvane_missing what package)
    if(CMAKE_HOST_WIN32)
        message(FATAL_ERROR "${what} is missing. Where it comes from stands in docs/windows.md")
    endif()
    message(FATAL_ERROR "${what} is missing. Install it with: apt-get install ${package}")
endfunction()

# trelvane_find_qt(<component> <Debian package>)
macro(trelvane_find_qt component package)
    find_package(Qt5${component} 5.9 QUIET)
    if(NOT Qt5${component}_FOUND)
        trelvane_missing("Qt 5 ${component}" ${package})
    endif()
endmacro()

trelvane_find_qt(Core qtbase5-dev)
trelvane_find_qt(Gui qtbase5-dev)
trelvane_find_qt(Widgets qtbase5-dev)
trelvane_find_qt(Network qtbase5-dev)
trelvane_find_qt(Xml qtbase5-dev)
trelvane_find_qt(Test qtbase5-dev)
trelvane_find_qt(Qml qtdeclarative5-dev)
trelvane_find_qt(Quick qtdeclarative5-dev)
if(TRELVANE_WEB_ENGINE)
    find_package(Qt5WebEngine 5.9 QUIET)
    if(NOT Qt5WebEngine_FOUND)
        message(FATAL_ERROR "Qt 5 WebEngine is missing. Install it with: apt-get install qtwebengine5-dev, "
            "or build without CoffeeScript: -DTRELVANE_WEB_ENGINE=OFF")
    endif()
endif()
trelvane_find_qt(LinguistTools qttools5-dev)

# The window system's own calls, on X11 only (see cpp/Tutorial/guidance/WindowPlatform.h).
if(UNIX AND NOT APPLE)
    find_path(XCB_INCLUDE_DIR xcb/shape.h)
    find_library(XCB_LIBRARY xcb)
    find_library(XCB_SHAPE_LIBRARY xcb-shape)
    if(NOT XCB_INCLUDE_DIR OR NOT XCB_LIBRARY OR NOT XCB_SHAPE_LIBRARY)
        trelvane_missing("XCB with its shape extension" "libxcb1-dev libxcb-shape0-dev")
    endif()
endif()

# The pictures are SVG sources; the program carries PNG files of exact sizes.
find_program(RSVG_CONVERT rsvg-convert)
if(NOT RSVG_CONVERT)
    trelvane_missing("rsvg-convert" librsvg2-bin)
endif()

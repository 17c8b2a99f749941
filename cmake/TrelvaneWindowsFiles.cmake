# What an installation on Windows holds beside the programs, so that it runs where no Qt is: in bin/ all libraries that
# are not the system's, in plugins/ and qml/ what Qt loads as it runs. qt.conf tells Qt of them.
set(TRELVANE_LIBRARY_DIRS "" CACHE STRING "Folders of the libraries to be packed, beside Qt's own")
get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
get_filename_component(qt_bin ${qmake} DIRECTORY)
get_filename_component(qt ${qt_bin} DIRECTORY)

set(plugins platforms/qwindows styles/qwindowsvistastyle)
set(qml_modules QtQml QtQuick.2 QtQuick/Controls QtQuick/Dialogs QtQuick/Layouts QtQuick/PrivateWidgets
    QtQuick/Window.2 QtGraphicalEffects Qt/labs/folderlistmodel Qt/labs/settings)
if(TRELVANE_WEB_ENGINE)
    list(APPEND qml_modules QtWebEngine)
endif()

foreach(plugin ${plugins})
    get_filename_component(kind ${plugin} DIRECTORY)
    install(FILES ${qt}/plugins/${plugin}.dll DESTINATION plugins/${kind})
endforeach()
set(missing)
foreach(module ${qml_modules})
    if(EXISTS ${qt}/qml/${module})
        get_filename_component(parent "${module}" DIRECTORY)
        install(DIRECTORY ${qt}/qml/${module} DESTINATION qml/${parent} PATTERN *.qmltypes EXCLUDE)
    else()
        list(APPEND missing ${module})
    endif()
endforeach()
if(missing)
    list(JOIN missing ", " missing)
    message(STATUS "Without the authoring mode: the Qt in ${qt} has no ${missing}")
endif()
file(GLOB translations ${qt}/translations/qtbase_*.qm)
install(FILES ${translations} DESTINATION translations)
file(WRITE ${CMAKE_BINARY_DIR}/packaging/qt.conf "[Paths]\nPrefix = ..\nPlugins = plugins\nQml2Imports = qml\nTranslations = translations\n")
install(FILES ${CMAKE_BINARY_DIR}/packaging/qt.conf DESTINATION ${CMAKE_INSTALL_BINDIR})

string(REPLACE ";" " " TRELVANE_LIBRARY_DIRS "${TRELVANE_LIBRARY_DIRS}")
set(tool "")
if(CMAKE_CROSSCOMPILING)
    set(tool "set(CMAKE_GET_RUNTIME_DEPENDENCIES_PLATFORM windows+pe)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_TOOL objdump)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_COMMAND \"${CMAKE_OBJDUMP}\")")
endif()
# Names come in small letters, which only Windows finds: what is left is looked for by hand, until nothing new is found.
install(CODE "
    cmake_policy(SET CMP0057 NEW)
    ${tool}
    set(root \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
    file(GLOB programs \"\${root}/${CMAKE_INSTALL_BINDIR}/*.exe\")
    file(GLOB_RECURSE found \"\${root}/plugins/*.dll\" \"\${root}/qml/*.dll\")
    set(known \"\")
    foreach(folder ${qt_bin} ${TRELVANE_LIBRARY_DIRS})
        file(GLOB libraries \"\${folder}/*.dll\")
        list(APPEND known \${libraries})
    endforeach()
    set(packed \"\")
    set(new \${programs})
    while(new)
        set(new \"\")
        file(GET_RUNTIME_DEPENDENCIES
            EXECUTABLES \${programs}
            LIBRARIES \${found}
            DIRECTORIES ${qt_bin} ${TRELVANE_LIBRARY_DIRS}
            PRE_EXCLUDE_REGEXES \"^api-ms-\" \"^ext-ms-\"
            POST_EXCLUDE_REGEXES \"[Ss]ystem32\"
            RESOLVED_DEPENDENCIES_VAR libraries
            UNRESOLVED_DEPENDENCIES_VAR unresolved)
        list(APPEND packed \${libraries})
        foreach(library \${known})
            get_filename_component(name \${library} NAME)
            string(TOLOWER \${name} name)
            if(name IN_LIST unresolved AND NOT library IN_LIST found)
                list(APPEND new \${library})
            endif()
        endforeach()
        list(APPEND found \${new})
        list(APPEND packed \${new})
    endwhile()
    list(REMOVE_DUPLICATES packed)
    file(INSTALL \${packed} DESTINATION \"\${root}/${CMAKE_INSTALL_BINDIR}\")")

# What an installation consists of: the programs that users and writers start, the tutorials that a
# writer's folder begins with, and on a Unix desktop the files that it expects beside programs.
# Nothing that is installed knows where it lies, so that the whole can be moved.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(programs trelvane trelvane-author)
foreach(tool trelvane-host trelvane-check)
    if(TARGET ${tool})
        list(APPEND programs ${tool})
    endif()
endforeach()
install(TARGETS ${programs} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

set(samples ${CMAKE_INSTALL_DATADIR}/trelvane/tutorial-win)
install(DIRECTORY qml/Tutorial/ DESTINATION ${samples}/qml/Tutorial FILES_MATCHING PATTERN *.js)
install(DIRECTORY translations/ DESTINATION ${samples}/translations FILES_MATCHING PATTERN *.ts
    PATTERN "interface_*" EXCLUDE)

set(packaging ${CMAKE_SOURCE_DIR}/packaging)
include(TrelvaneCopyright)
trelvane_write_copyright(TRELVANE_HAS_COPYRIGHT ${CMAKE_BINARY_DIR}/packaging/copyright)
if(TRELVANE_HAS_COPYRIGHT)
    install(FILES ${CMAKE_BINARY_DIR}/packaging/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()

if(WIN32)
    include(TrelvaneWindowsFiles)
endif()
if(NOT UNIX OR APPLE)
    return()
endif()

# trelvane_install_compressed(<file> <folder> <name>): as Debian wants it, the same in each build.
find_program(GZIP_PROGRAM gzip)
function(trelvane_install_compressed file folder name)
    set(output ${CMAKE_BINARY_DIR}/packaging/${name}.gz)
    add_custom_command(OUTPUT ${output}
        COMMAND ${GZIP_PROGRAM} -9nc ${file} > ${output}
        DEPENDS ${file}
        VERBATIM)
    set_property(GLOBAL APPEND PROPERTY trelvane_installed_files ${output})
    install(FILES ${output} DESTINATION ${folder})
endfunction()

file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packaging)
foreach(program ${programs})
    trelvane_install_compressed(
        ${CMAKE_SOURCE_DIR}/docs/man/${program}.1 ${CMAKE_INSTALL_MANDIR}/man1 ${program}.1)
endforeach()
trelvane_install_compressed(${packaging}/changelog ${CMAKE_INSTALL_DOCDIR} changelog)

# The desktop starts the authoring mode beside the stand-in, which a build may leave out.
if(TARGET trelvane-host)
    set(id example.harnwick.trelvane)
    install(FILES ${packaging}/${id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES ${packaging}/${id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
    set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    install(FILES ${packaging}/trelvane.svg DESTINATION ${icons}/scalable/apps)
    foreach(size 16 22 24 32 48 64 128 256 512)
        set(picture ${CMAKE_BINARY_DIR}/packaging/trelvane-${size}.png)
        add_custom_command(OUTPUT ${picture}
            COMMAND ${RSVG_CONVERT} --width=${size} --height=${size} --output=${picture} ${packaging}/trelvane.svg
            DEPENDS ${packaging}/trelvane.svg
            VERBATIM)
        set_property(GLOBAL APPEND PROPERTY trelvane_installed_files ${picture})
        install(FILES ${picture} DESTINATION ${icons}/${size}x${size}/apps RENAME trelvane.png)
    endforeach()
endif()

get_property(files GLOBAL PROPERTY trelvane_installed_files)
add_custom_target(trelvane_packaging ALL DEPENDS ${files})

# Packages of what TrelvaneInstall installs: `cpack` in the build's folder makes them all, -G TGZ or
# another name one of them. They come to packages/ there.
set(CPACK_PACKAGE_NAME trelvane)
set(CPACK_PACKAGE_VENDOR Harnwick)
set(CPACK_PACKAGE_CONTACT "Harnwick <trelvane@harnwick.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "guide users of a desktop editor through tutorials")
set(CPACK_PACKAGE_DESCRIPTION
    "Trelvane is the companion process of a desktop editor. It draws the
guidance of a tutorial over the windows of that editor, step by step: an
arrow, an icon of what to do and a hint.
.
The package also holds the authoring mode where tutorials are written, a
check for what learners would stumble over, and a stand-in for the editor to
try tutorials with.")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PACKAGE_INSTALL_DIRECTORY Trelvane)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_VERBATIM_VARIABLES ON)
# The build for development is as optimised as a release, and has debug information beside it: packages
# are made from it without building twice.
set(CPACK_STRIP_FILES ON)

if(WIN32)
    set(CPACK_GENERATOR ZIP)
elseif(UNIX AND NOT APPLE)
    set(CPACK_GENERATOR TGZ)
    find_program(DPKG_SHLIBDEPS dpkg-shlibdeps)
    if(DPKG_SHLIBDEPS)
        list(APPEND CPACK_GENERATOR DEB)
    endif()
endif()

# Libraries are found by what the programs link with. What the screens load as they run is in the list
# that the commands install.
set(packages_file ${CMAKE_SOURCE_DIR}/scripts/packages.sh)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${packages_file})
file(READ ${packages_file} text)
if(NOT text MATCHES "\npackages_to_run=\\(([^)]*)\\)")
    message(FATAL_ERROR "${packages_file} has no list of the packages to run with.")
endif()
string(REGEX MATCHALL "[^ \t\n]+" run_packages "${CMAKE_MATCH_1}")
# The guidance has the system's font, and its texts are Japanese where nothing else is said.
list(APPEND run_packages "fonts-ipafont-gothic | fonts-japanese-gothic | fonts-noto-cjk | fonts-mplus")
list(JOIN run_packages ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# For the maps of tutorials, the exchange with translators, and tutorials that play by themselves.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "graphviz, qttools5-dev-tools, xdotool")
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)

include(CPack)

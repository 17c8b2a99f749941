# The M+ fonts by the names that the theme knows them by. TRELVANE_FONTS_DIR
# names the folder of the font files where it isn't the distribution's.
set(TRELVANE_FONTS_DIR "" CACHE PATH "Folder of the M+ font files, empty for the installed ones")

# trelvane_add_fonts(<collection> <folder in it>)
function(trelvane_add_fonts collection folder)
    set(search "${TRELVANE_FONTS_DIR}")
    if(NOT search)
        set(search /usr/share/fonts/opentype/mplus /usr/local/share/fonts/mplus)
    endif()
    foreach(pair
            mplus-1m-regular.ttf=Mplus1Code-Regular
            mplus-1c-regular.ttf=Mplus1-Regular
            mplus-1p-medium.ttf=Mplus1-Medium
            mplus-1p-heavy.ttf=Mplus1-ExtraBold)
        string(REGEX MATCH "^([^=]+)=(.+)$" pair "${pair}")
        set(alias ${CMAKE_MATCH_1})
        set(name ${CMAKE_MATCH_2})
        unset(font CACHE)
        find_file(font NAMES ${name}.otf ${name}.ttf ${alias} PATHS ${search}
            NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
        if(NOT font)
            message(FATAL_ERROR "The M+ font ${name} is missing in ${search}. Install it with: "
                "apt-get install fonts-mplus, or name its folder with -DTRELVANE_FONTS_DIR=")
        endif()
        trelvane_resource(${collection} ${folder}/${alias} ${font})
        unset(font CACHE)
    endforeach()
endfunction()

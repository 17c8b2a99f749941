# What every target of this project shares: warnings, definitions, sanitizers.
function(trelvane_target target)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII
        QT_NO_KEYWORDS
        QT_NO_FOREACH
        QT_USE_QSTRINGBUILDER
        QT_DEPRECATED_WARNINGS
        QT_DISABLE_DEPRECATED_BEFORE=0x050900)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8)
        if(TRELVANE_WERROR)
            target_compile_options(${target} PRIVATE /WX)
        endif()
        return()
    endif()
    target_compile_options(${target} PRIVATE -Wall -Wextra)
    if(TRELVANE_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(TRELVANE_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${TRELVANE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${TRELVANE_SANITIZE})
    endif()
endfunction()

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
    if(NOT TRELVANE_SANITIZE AND NOT WIN32 AND NOT APPLE)
        # A fault of memory ends the program where it happens. The compiler wants an optimised build to see sizes.
        target_compile_options(${target} PRIVATE -fstack-protector-strong)
        target_compile_definitions(${target} PRIVATE $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:_FORTIFY_SOURCE=2>)
        target_link_options(${target} PRIVATE LINKER:-z,relro,-z,now)
    endif()
    if(TRELVANE_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(TRELVANE_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${TRELVANE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${TRELVANE_SANITIZE})
    endif()
endfunction()

# What tests under the sanitizers get: the platform's own leaks are known by its name, and what was built without the
# thread sanitizer is no race.
set(TRELVANE_SANITIZER_ENVIRONMENT)
if(TRELVANE_SANITIZE)
    set(TRELVANE_SANITIZER_ENVIRONMENT
        "UBSAN_OPTIONS=print_stacktrace=1"
        "LSAN_OPTIONS=print_suppressions=0:suppressions=${CMAKE_SOURCE_DIR}/tests/support/leaks.supp"
        "TSAN_OPTIONS=ignore_noninstrumented_modules=1:halt_on_error=1")
endif()

# What every target of this tree shares: warnings, sanitizers, the include root; and Qt's headers, compiled once.

function(customcontrols_configure target)
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}")
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS
                                                 QT_DEPRECATED_WARNINGS QT_MESSAGELOGCONTEXT)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8 /permissive- $<$<BOOL:${CUSTOMCONTROLS_WERROR}>:/WX>)
    else()
        # Messages name the source file as it lies in the tree: what is built doesn't tell where that was, and is the
        # same everywhere.
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic $<$<BOOL:${CUSTOMCONTROLS_WERROR}>:-Werror>
                                                 "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/="
                                                 "-fmacro-prefix-map=${PROJECT_BINARY_DIR}/=")
    endif()
    if(CUSTOMCONTROLS_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${CUSTOMCONTROLS_SANITIZE} -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=${CUSTOMCONTROLS_SANITIZE})
    endif()
    if(CUSTOMCONTROLS_COVERAGE)
        # The last of them is built from sources of the first.
        if(target MATCHES "^(CorvaneBase|CustomControlsInternal|NetworkConfiguratorTest)$")
            target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic)
        endif()
        target_link_options(${target} PRIVATE --coverage)
    endif()
endfunction()

# Has the target compile on top of Qt's headers, which are compiled once, where CUSTOMCONTROLS_PRECOMPILE asks for it.
# Targets with the same flags share them: the second argument names who makes them.
function(customcontrols_precompile target)
    if(NOT CUSTOMCONTROLS_PRECOMPILE)
        return()
    endif()
    if(ARGC GREATER 1)
        target_precompile_headers(${target} REUSE_FROM ${ARGV1})
    else()
        target_precompile_headers(${target} PRIVATE <QtWidgets>)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # The second is what ccache needs to recognise such a compilation.
        target_compile_options(${target} PRIVATE -Winvalid-pch -fpch-preprocess)
    endif()
endfunction()

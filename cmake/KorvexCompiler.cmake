# Compiler settings, all in one INTERFACE target that every target of the project links.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_LINK_DEPENDS_NO_SHARED ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

find_program(KORVEX_CCACHE ccache)
if(KORVEX_CCACHE)
    # The same cache serves every clone: paths are stored relative to the source tree.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros
        ${KORVEX_CCACHE})
endif()

add_library(korvex_compiler INTERFACE)
target_compile_definitions(korvex_compiler INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII GLOG_NO_ABBREVIATED_SEVERITIES)
if(MSVC)
    target_compile_options(korvex_compiler INTERFACE /W4 /WX /wd4996 /wd4251 /utf-8)
    target_compile_definitions(korvex_compiler INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN _CRT_SECURE_NO_WARNINGS)
else()
    target_compile_options(korvex_compiler INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
        -Wno-error=deprecated-declarations)
    if(CMAKE_BUILD_TYPE STREQUAL "Debug")
        target_compile_options(korvex_compiler INTERFACE -Og -g1)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(korvex_compiler INTERFACE -fpch-preprocess)
    endif()
    if(KORVEX_SANITIZE)
        target_compile_options(korvex_compiler INTERFACE -fsanitize=${KORVEX_SANITIZE} -fno-omit-frame-pointer)
        target_link_options(korvex_compiler INTERFACE -fsanitize=${KORVEX_SANITIZE})
        if(KORVEX_SANITIZE MATCHES "undefined")
            target_compile_options(korvex_compiler INTERFACE -fno-sanitize-recover=undefined)
        endif()
    endif()
endif()

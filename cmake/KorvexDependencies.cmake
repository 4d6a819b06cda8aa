# Everything that is not the project's own, found here and nowhere else.

find_package(Threads REQUIRED)
find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Network Widgets LinguistTools)
if(UNIX AND NOT APPLE)
    find_package(Qt5 5.15 REQUIRED COMPONENTS DBus)
endif()
find_package(Boost 1.74 REQUIRED COMPONENTS filesystem)
find_package(PkgConfig REQUIRED)
pkg_check_modules(FFMPEG REQUIRED IMPORTED_TARGET
    libavformat>=59 libavcodec>=59 libavutil>=57 libswscale>=6 libswresample>=4)
pkg_check_modules(LIBASS REQUIRED IMPORTED_TARGET libass>=0.17)
pkg_check_modules(FONTCONFIG REQUIRED IMPORTED_TARGET fontconfig)
pkg_check_modules(UCHARDET REQUIRED IMPORTED_TARGET uchardet)
pkg_check_modules(GLOG REQUIRED IMPORTED_TARGET libglog)
find_package(Iconv REQUIRED)
find_package(QuaZip-Qt5 1.3 REQUIRED)

# The dependency-injection container: the installed library when there is one, else the project's own header with the
# same public builder interface.
find_package(Hypodermic CONFIG QUIET)
add_library(korvex_container INTERFACE)
if(TARGET Hypodermic::Hypodermic)
    target_link_libraries(korvex_container INTERFACE Hypodermic::Hypodermic)
    set(KORVEX_CONTAINER "installed Hypodermic")
    set(KORVEX_CONTAINER_KIND "package")
elseif(Hypodermic_ROOT)
    find_path(HYPODERMIC_INCLUDE_DIR Hypodermic/ContainerBuilder.h REQUIRED
        PATHS "${Hypodermic_ROOT}" PATH_SUFFIXES include "" NO_DEFAULT_PATH)
    target_include_directories(korvex_container SYSTEM INTERFACE "$<BUILD_INTERFACE:${HYPODERMIC_INCLUDE_DIR}>")
    target_link_libraries(korvex_container INTERFACE Boost::headers)
    set(KORVEX_CONTAINER "Hypodermic in ${HYPODERMIC_INCLUDE_DIR}")
    set(KORVEX_CONTAINER_KIND "headers")
else()
    target_include_directories(korvex_container INTERFACE
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/Platform/Hypodermic>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/korvex/Hypodermic>")
    target_link_libraries(korvex_container INTERFACE Boost::headers)
    set(KORVEX_CONTAINER "the project's own header")
    set(KORVEX_CONTAINER_KIND "own")
endif()
add_library(Korvex::Container ALIAS korvex_container)
message(STATUS "Container: ${KORVEX_CONTAINER}")

if(KORVEX_BUILD_TESTS)
    find_package(GTest REQUIRED)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Test)
    if(UNIX AND NOT APPLE)
        pkg_check_modules(XTST REQUIRED IMPORTED_TARGET xtst x11)
    endif()
endif()
if(KORVEX_BUILD_BENCHMARKS)
    find_package(benchmark REQUIRED)
endif()

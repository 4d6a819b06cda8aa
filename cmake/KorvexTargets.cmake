# korvex_add_layer(<target> LIBRARY <shared library> SOURCES <file>... [LINKS <library>...] [WIDGETS])
#   One folder's objects; they become part of the shared library named. A layer sees the include roots of the project and
#   what it links, nothing else. WIDGETS: it has Qt objects of its own and resources.
function(korvex_add_layer target)
    cmake_parse_arguments(ARG "WIDGETS" "LIBRARY" "SOURCES;LINKS" ${ARGN})
    add_library(${target} OBJECT ${ARG_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ${ARG_WIDGETS} AUTORCC ${ARG_WIDGETS})
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/Platform>" "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/Modules>")
    target_link_libraries(${target} PRIVATE korvex_compiler ${ARG_LINKS})
    string(TOUPPER ${ARG_LIBRARY} macro)
    target_compile_definitions(${target} PRIVATE ${macro}_BUILD)
    set_property(GLOBAL APPEND PROPERTY ${ARG_LIBRARY}_LAYERS ${target})
endfunction()

# korvex_add_library(<target> HEADERS_OF <root folder> FOLDERS <folder>... LINKS <library>... PUBLIC_LINKS <library>...)
#   The shared library made of the layers that named it. The headers in the folders (not below them) are its interface:
#   they are installed, and each has to compile alone (target all_verify_interface_header_sets).
function(korvex_add_library target)
    cmake_parse_arguments(ARG "" "HEADERS_OF" "FOLDERS;LINKS;PUBLIC_LINKS" ${ARGN})
    list(TRANSFORM ARG_FOLDERS REPLACE "(.+)" "${ARG_HEADERS_OF}/\\1/*.h")
    # Looked up at configure time only: checking the folders at every build would cost each ./run a look.
    file(GLOB headers ${ARG_FOLDERS})
    get_property(layers GLOBAL PROPERTY ${target}_LAYERS)
    add_library(${target} SHARED)
    foreach(layer IN LISTS layers)
        target_sources(${target} PRIVATE "$<TARGET_OBJECTS:${layer}>")
    endforeach()
    target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${ARG_HEADERS_OF}" FILES ${headers})
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/Platform>" "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/Modules>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/korvex>")
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:korvex_compiler> ${ARG_LINKS} PUBLIC ${ARG_PUBLIC_LINKS})
    set_target_properties(${target} PROPERTIES
        LINKER_LANGUAGE CXX VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
endfunction()

# What every test runs in. The sanitizers' suppressions name libraries of the system; a blanket option
# (ignore_noninstrumented_modules) would also hide what the project's own code does through memcpy or std::string.
# Online services point at a closed port of this machine, so that no test can reach a real one by accident.
set(KORVEX_TEST_ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8"
    "KORVEX_OPENSUBTITLES_URL=http://127.0.0.1:9/api/v1" "KORVEX_OPENSUBTITLES_LEGACY_URL=http://127.0.0.1:9")
if(KORVEX_SANITIZE MATCHES "thread")
    list(APPEND KORVEX_TEST_ENVIRONMENT "TSAN_OPTIONS=suppressions=${CMAKE_CURRENT_LIST_DIR}/tsan-suppressions.txt")
endif()
if(KORVEX_SANITIZE MATCHES "address")
    list(APPEND KORVEX_TEST_ENVIRONMENT
        "LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_LIST_DIR}/lsan-suppressions.txt:print_suppressions=0")
endif()
if(KORVEX_SANITIZE MATCHES "undefined")
    list(APPEND KORVEX_TEST_ENVIRONMENT "UBSAN_OPTIONS=print_stacktrace=1")
endif()

# LAUNCHER: a command in front of the program.
function(korvex_add_test_program name main_library)
    cmake_parse_arguments(ARG "" "LAUNCHER" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/Tests")
    target_link_libraries(${name} PRIVATE korvex_compiler ${ARG_LINKS} ${main_library} GTest::gmock)
    target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <gtest/gtest.h> <string> <vector>)
    add_test(NAME ${name} COMMAND ${ARG_LAUNCHER} $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES TIMEOUT 600 ENVIRONMENT "${KORVEX_TEST_ENVIRONMENT}")
endfunction()

# korvex_add_test(<name> SOURCES <file>... [LINKS <library>...])
#   One test program, one ctest entry, headless.
function(korvex_add_test name)
    korvex_add_test_program(${name} GTest::gtest_main ${ARGN})
endfunction()

# korvex_add_widget_test(<name> SOURCES <file>... [LINKS <library>...])
#   The same for widgets: with a QApplication, the host's look, QTest and Tests/Support/WidgetSupport.h.
function(korvex_add_widget_test name)
    korvex_add_test_program(${name} korvex_widget_test_main ${ARGN})
endfunction()

# korvex_add_display_test(<name> SOURCES <file>... [LINKS <library>...])
#   A program with a main() of its own on a real X server in memory, driven by Tests/Support/DisplayPerson.h. What it
#   shows is kept as pictures in the folder Screenshots beside the test's build files. Not under the thread sanitizer:
#   the person's thread and the program's talk through the toolkit, which is not instrumented.
function(korvex_add_display_test name)
    if(NOT TARGET korvex_display_person OR KORVEX_SANITIZE MATCHES "thread")
        return()
    endif()
    korvex_add_test_program(${name} korvex_display_person ${ARGN}
        LAUNCHER "${PROJECT_SOURCE_DIR}/Tests/Support/UnderXvfb.sh")
    set_property(TEST ${name} PROPERTY ENVIRONMENT_MODIFICATION
        "QT_QPA_PLATFORM=set:xcb;KORVEX_SCREENSHOTS=set:${CMAKE_CURRENT_BINARY_DIR}/Screenshots")
endfunction()

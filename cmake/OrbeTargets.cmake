# The project's own kinds of targets. Everything a target needs is on the target: no global flags.
include_guard(GLOBAL)

add_library(orbe_options INTERFACE)
target_compile_features(orbe_options INTERFACE cxx_std_20)
target_compile_options(orbe_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
    -Woverloaded-virtual -Wold-style-cast $<$<BOOL:${ORBE_WERROR}>:-Werror>)
if(ORBE_SANITIZE)
    target_compile_options(orbe_options INTERFACE -fsanitize=${ORBE_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=all)
    target_link_options(orbe_options INTERFACE -fsanitize=${ORBE_SANITIZE})
endif()
if(WIN32)
    target_compile_definitions(orbe_options INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN
        _WIN32_WINNT=0x0A00)
endif()

add_library(orbe_qt_options INTERFACE)
target_link_libraries(orbe_qt_options INTERFACE orbe_options)
target_compile_definitions(orbe_qt_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII QT_NO_CONTEXTLESS_CONNECT)

function(orbe_qt_target name)
    target_link_libraries(${name} PRIVATE orbe_qt_options)
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON AUTOUIC ON AUTORCC ON
        AUTOUIC_SEARCH_PATHS "${PROJECT_SOURCE_DIR}/forms")
endfunction()

# orbe_library(<name> SOURCES ... [LINKS ...] [PRIVATE_LINKS ...])
# A layer of src/: a static library whose include directory is its own folder and what it links.
function(orbe_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    orbe_qt_target(${name})
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
endfunction()

# orbe_program(<name> SOURCES ... [LINKS ...])
# A program that lies in build/<preset>/bin with the data of data/ beside it.
function(orbe_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} WIN32 ${ARG_SOURCES})
    orbe_qt_target(${name})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
endfunction()

# orbe_test(<name> SOURCES ... [LINKS ...] [TIMEOUT seconds] [SYSTEM])
# A Qt Test program, run by CTest without a screen and, where it needs hidapi, on the virtual keyboards.
# SYSTEM labels what leans on the operating system, so that it can be picked out: ctest -L system
function(orbe_test name)
    cmake_parse_arguments(ARG "SYSTEM" "TIMEOUT" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    orbe_qt_target(${name})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} Qt6::Test)
    set_target_properties(${name} PROPERTIES
        ORBE_VIRTUAL_HID ON
        RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests/${name}")
    add_test(NAME ${name} COMMAND ${name})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 60)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/tsan.supp")
    if(ARG_SYSTEM)
        set_tests_properties(${name} PROPERTIES LABELS system)
    endif()
endfunction()

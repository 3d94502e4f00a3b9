# Miniaudio::miniaudio   the audio library, which is one header
# The header is the same for every system. A cross build must not see the rest of the folder it lies in, so there it
# is copied into the build.
find_path(MINIAUDIO_INCLUDE_DIR miniaudio.h NO_CMAKE_FIND_ROOT_PATH)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Miniaudio REQUIRED_VARS MINIAUDIO_INCLUDE_DIR)

if(Miniaudio_FOUND AND NOT TARGET Miniaudio::miniaudio)
    set(include_dir "${MINIAUDIO_INCLUDE_DIR}")
    if(CMAKE_CROSSCOMPILING)
        set(include_dir "${PROJECT_BINARY_DIR}/miniaudio")
        configure_file("${MINIAUDIO_INCLUDE_DIR}/miniaudio.h" "${include_dir}/miniaudio.h" COPYONLY)
    endif()
    find_package(Threads REQUIRED)
    add_library(Miniaudio::miniaudio INTERFACE IMPORTED GLOBAL)
    target_include_directories(Miniaudio::miniaudio INTERFACE "${include_dir}")
    target_link_libraries(Miniaudio::miniaudio INTERFACE ${CMAKE_DL_LIBS} ${CMAKE_THREAD_LIBS_INIT})
endif()
mark_as_advanced(MINIAUDIO_INCLUDE_DIR)

# The bare cross compiler: Qt and hidapi themselves are built with this file (scripts/setup-windows).
# The posix flavour is the one whose runtime has std::thread and std::mutex.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(ORBE_MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ORBE_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ORBE_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${ORBE_MINGW}-windres)

# Libraries and headers come from the target's roots only, programs (moc, rcc, lrelease) from this machine.
set(CMAKE_FIND_ROOT_PATH /usr/${ORBE_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

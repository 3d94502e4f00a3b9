# Cross build of the hub for Windows, against the Qt and hidapi that scripts/setup-windows put into its cache:
# $ORBE_CACHE, or else orbehub in the user's cache folder. Tests run under Wine, by way of wine-run beside this file.
include("${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake")

if(DEFINED ENV{ORBE_CACHE})
    set(ORBE_CACHE "$ENV{ORBE_CACHE}")
elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(ORBE_CACHE "$ENV{XDG_CACHE_HOME}/orbehub")
else()
    set(ORBE_CACHE "$ENV{HOME}/.cache/orbehub")
endif()
set(ORBE_WINDOWS_PREFIX "${ORBE_CACHE}/qt6-mingw")
if(NOT EXISTS "${ORBE_WINDOWS_PREFIX}/stamp.txt")
    message(FATAL_ERROR "No Qt for Windows in ${ORBE_WINDOWS_PREFIX}: run scripts/setup-windows first.")
endif()
list(PREPEND CMAKE_FIND_ROOT_PATH "${ORBE_WINDOWS_PREFIX}")
list(PREPEND CMAKE_PREFIX_PATH "${ORBE_WINDOWS_PREFIX}")

# The tools that run while building (moc, uic, rcc, lrelease) are this machine's own.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
set(Qt6LinguistTools_DIR "${QT_HOST_PATH_CMAKE_DIR}/Qt6LinguistTools")

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/wine-run")

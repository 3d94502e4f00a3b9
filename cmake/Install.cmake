# What `cmake --install` lays down; scripts/package makes the packages of it.
#
# The hub finds its data beside itself. On Windows one folder holds everything, and may lie anywhere. On Linux the
# program lies in lib/orbehub, its data in share/orbehub, and links bring the two together. config/device.ini is
# the hub's own to write, and never installed.
if(WIN32)
    set(data_place .)
else()
    set(data_place share/orbehub)
endif()
install(DIRECTORY data/config data/images DESTINATION ${data_place} PATTERN device.ini EXCLUDE)

if(WIN32)
    install(TARGETS OrbeHub RUNTIME DESTINATION .)
    return()
endif()

install(TARGETS OrbeHub RUNTIME DESTINATION lib/orbehub)
set(install_folder "${PROJECT_BINARY_DIR}/install")
file(MAKE_DIRECTORY "${install_folder}")

foreach(folder config images)
    file(CREATE_LINK ../../${data_place}/${folder} "${install_folder}/${folder}" SYMBOLIC)
    install(FILES "${install_folder}/${folder}" DESTINATION lib/orbehub)
endforeach()

install(PROGRAMS packaging/linux/orbehub DESTINATION bin)
install(FILES packaging/linux/70-orbehub.rules DESTINATION lib/udev/rules.d)
install(FILES packaging/linux/OrbeHub.desktop DESTINATION share/applications)
install(FILES packaging/linux/com.orbe.OrbeHub.metainfo.xml DESTINATION share/metainfo)
install(FILES packaging/linux/orbehub.1 DESTINATION share/man/man1)

# The icon as a drawing, and the pixels of its small sizes from the Windows icon.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS packaging/linux/icons resources/images/logo.ico)
execute_process(
    COMMAND "${Python3_EXECUTABLE}" packaging/linux/icons resources/images/logo.ico "${install_folder}/hicolor"
    WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
    COMMAND_ERROR_IS_FATAL ANY)
install(DIRECTORY "${install_folder}/hicolor" DESTINATION share/icons)
install(FILES resources/art/logo.svg DESTINATION share/icons/hicolor/scalable/apps RENAME orbehub.svg)

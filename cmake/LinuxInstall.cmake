# What belongs to the program on a Linux desktop, and where: any prefix, also one that is chosen with
# `cmake --install`, and a folder before it (DESTDIR).
include(GNUInstallDirs)
# Its name in paths is that of the program, not of the project.
set(VANTOR_DOCUMENTS_FOLDER ${CMAKE_INSTALL_DATAROOTDIR}/doc/vantor)
set(VANTOR_ID com.kestrone.Vantor)
set(packaging ${CMAKE_SOURCE_DIR}/packaging/linux)

install(TARGETS vantor RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${packaging}/${VANTOR_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/${VANTOR_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(DIRECTORY ${packaging}/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
install(FILES ${packaging}/vantor.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
foreach(language IN LISTS vantor_languages)
    install(FILES ${packaging}/manuals/vantor.${language}.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/${language}/man1 RENAME vantor.1)
endforeach()
install(FILES ${CMAKE_SOURCE_DIR}/docs/snapshot.schema.json DESTINATION ${CMAKE_INSTALL_DATADIR}/vantor)
install(FILES ${CMAKE_SOURCE_DIR}/LICENSE DESTINATION ${VANTOR_DOCUMENTS_FOLDER})

# A bus starts programs by their whole path, and the prefix is known when they are installed. It takes
# the line for a command, in which other characters than these may mean something.
set(service ${CMAKE_CURRENT_BINARY_DIR}/${VANTOR_ID}.service)
install(CODE "
    set(program \"${CMAKE_INSTALL_BINDIR}/vantor\")
    set(form \"${packaging}/${VANTOR_ID}.service.in\")
    set(service \"${service}\")")
install(CODE [[
    cmake_path(ABSOLUTE_PATH program BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}")
    if(program MATCHES "[^A-Za-z0-9/._+-]")
        string(REPLACE "'" "'\\''" program "${program}")
        set(program "'${program}'")
    endif()
    configure_file("${form}" "${service}" @ONLY)]])
install(FILES ${service} DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)

add_custom_target(uninstall
    COMMAND ${CMAKE_COMMAND} -D MANIFEST=${CMAKE_BINARY_DIR}/install_manifest.txt
        -P ${CMAKE_SOURCE_DIR}/cmake/Uninstall.cmake
    COMMENT "Removing what was installed" USES_TERMINAL VERBATIM)

# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# Puts the application into a prefix.
file(RELATIVE_PATH libraries_from_program "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
set_target_properties(px-scheduler PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries_from_program}")

# install_application(<arguments of install>...): as a part of the application.
macro(install_application)
    install(${ARGN} COMPONENT application)
endmacro()

install_application(TARGETS px-scheduler RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install_application(FILES Packaging/org.zentor.PxScheduler.desktop
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install_application(FILES Packaging/org.zentor.PxScheduler.metainfo.xml
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install_application(FILES Packaging/px-scheduler.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install_application(FILES Packaging/px-scheduler.bash
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME px-scheduler)
install_application(FILES Icons/px-scheduler.svg
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")

if(TARGET px-recorder)
    install_application(TARGETS px-recorder RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
    install_application(FILES ../Capture/Packaging/px-recorder.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
    install_application(FILES ../Capture/Packaging/px-recorder.bash
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME px-recorder)
endif()

# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# Puts the application into a prefix. Its libraries are its own there: they lie in a folder that no
# other program looks in.
include(GNUInstallDirs)

set(private_library_dir "${CMAKE_INSTALL_LIBDIR}/px-scheduler")
file(RELATIVE_PATH libraries_from_program
    "/${CMAKE_INSTALL_BINDIR}" "/${private_library_dir}")
set_target_properties(px-scheduler PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries_from_program}")
set_target_properties(PXUiSchedulerWidgets PXUiSchedulerReferenceHostCore PXUiSchedulerReferenceHost
    PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS px-scheduler RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(TARGETS PXUiSchedulerWidgets PXUiSchedulerReferenceHostCore PXUiSchedulerReferenceHost
    LIBRARY DESTINATION "${private_library_dir}" NAMELINK_SKIP)
install(FILES Packaging/org.zentor.PxScheduler.desktop
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES Packaging/org.zentor.PxScheduler.metainfo.xml
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES Packaging/px-scheduler.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES Packaging/px-scheduler.bash
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME px-scheduler)
install(FILES Icons/px-scheduler.svg
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")

if(TARGET px-recorder)
    install(TARGETS px-recorder RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
    install(FILES ../Capture/Packaging/px-recorder.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
    install(FILES ../Capture/Packaging/px-recorder.bash
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME px-recorder)
endif()

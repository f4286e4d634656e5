# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# Finds what px-recorder is built on. Where something is missing, says what, and switches the recorder
# off for this build: the application works without it, but cannot record.
find_package(PkgConfig QUIET)
if(PkgConfig_FOUND)
    pkg_check_modules(GStreamer QUIET IMPORTED_TARGET
        gstreamer-1.0>=1.20 gstreamer-app-1.0 gstreamer-video-1.0)
    pkg_check_modules(Display QUIET IMPORTED_TARGET x11 xcb xcb-randr)
endif()
if(TARGET PkgConfig::GStreamer)
    # With -pthread, a source could not use the precompiled headers of others.
    set_target_properties(PkgConfig::GStreamer PROPERTIES INTERFACE_COMPILE_OPTIONS "")
endif()
find_package(Qt${QT_MAJOR_VERSION} ${zentor_minimum_qt} QUIET COMPONENTS DBus)
set(THREADS_PREFER_PTHREAD_FLAG ON)
find_package(Threads REQUIRED)

if(NOT GStreamer_FOUND OR NOT Display_FOUND OR NOT Qt${QT_MAJOR_VERSION}DBus_FOUND)
    message(WARNING
        "px-recorder is not built: it needs the development files of GStreamer 1.20 "
        "(libgstreamer1.0-dev, libgstreamer-plugins-base1.0-dev), X11 (libx11-dev, libxcb1-dev, "
        "libxcb-randr0-dev), Qt D-Bus and pkg-config. SCHEDULER_BUILD_RECORDER=OFF says so silently.")
    set(SCHEDULER_BUILD_RECORDER OFF)
endif()

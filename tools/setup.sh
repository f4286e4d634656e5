# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# Installs the Debian packages that this repository needs. Sourced by ./run and ./test.
#
#   install_missing <package>...    installs those that are not installed yet; quick and silent when
#                                   there are none

# To build the application and run it: compiler and libraries; what compiles the translations; Qt's
# plugins for SVG icons and for Wayland; Qt's own translations; fonts for every language. For the
# recorder: GStreamer with what captures X11, PipeWire and sound, what encodes it, and what decodes it
# for the small pictures in the list of recordings.
packages_to_run=(
    g++ cmake ninja-build
    qtbase5-dev libboost-dev libgoogle-glog-dev
    qttools5-dev qttools5-dev-tools
    libqt5svg5 qtwayland5 qttranslations5-l10n
    fonts-dejavu-core fonts-noto-core fonts-noto-cjk
    pkg-config libgstreamer1.0-dev libgstreamer-plugins-base1.0-dev
    libx11-dev libxcb1-dev libxcb-randr0-dev
    gstreamer1.0-plugins-base gstreamer1.0-plugins-good gstreamer1.0-plugins-ugly
    gstreamer1.0-x gstreamer1.0-pulseaudio gstreamer1.0-pipewire gstreamer1.0-libav)

# To test it, in addition: linters, of licences too; a second compiler; Qt's private headers, for
# stand-ins of a screen; Qt 6 with its plugins and translations; a display that nobody sees, with what
# works a window on it; the accessibility bus; what checks the files that the application installs; what
# judges recordings; a sound server that no device belongs to; what writes the reference documents, with
# the names in Qt's.
packages_to_test=(
    clang-format-14 clang-tidy-14 clang-14 reuse git make python3
    qtbase5-private-dev
    qt6-base-dev qt6-base-private-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    libqt6svg6 qt6-wayland qt6-translations-l10n
    xvfb xauth xdotool openbox
    xserver-xorg-core xserver-xorg-video-dummy x11-xserver-utils
    dbus at-spi2-core python3-gi gir1.2-atspi-2.0 python3-dbusmock procps libglib2.0-bin
    appstream desktop-file-utils man-db
    ffmpeg
    pipewire pipewire-bin pipewire-pulse wireplumber pulseaudio-utils
    doxygen qtbase5-doc-dev)

# To make Debian packages of it.
packages_to_package=(
    debhelper fakeroot doxygen qtbase5-doc-dev git lintian)

missing_packages() {
    local package
    for package in "$@"; do
        if [[ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]]; then
            echo "$package"
        fi
    done
}

as_root() {
    if [[ $EUID -eq 0 ]]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Cannot install packages: neither root nor sudo. Please run as root: $*" >&2
        return 1
    fi
}

install_missing() {
    if ! command -v dpkg-query >/dev/null; then
        echo "Not a Debian system. If the build fails, install what corresponds to: $*" >&2
        return 0
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    if [[ ${#missing[@]} -eq 0 ]]; then
        return 0
    fi
    echo "Installing: ${missing[*]}" >&2
    as_root apt-get update -qq >&2
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

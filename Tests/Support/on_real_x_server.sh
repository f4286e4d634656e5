#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# Runs a program on a real X server with the dummy driver, whose outputs RandR can switch on and off.
#
#   on_real_x_server.sh <program> [<argument>...]
#
# Needs the Debian packages xserver-xorg-core, xserver-xorg-video-dummy and x11-xserver-utils. Where
# they are not installed or the server cannot be started, says so and ends with 77: skipped.
set -euo pipefail

# Nothing here draws with OpenGL, and a driver that is unloaded at the end leaks under the sanitizers.
export QT_XCB_GL_INTEGRATION=none

skip() {
    echo "Skipped: $*"
    exit 77
}

for command in Xorg xrandr; do
    command -v "$command" >/dev/null || skip "$command is not installed"
done
[[ -e /usr/lib/xorg/modules/drivers/dummy_drv.so ]] \
    || skip "the dummy driver (xserver-xorg-video-dummy) is not installed"

folder=$(mktemp -d)
server=
clean_up() {
    if [[ -n "$server" ]]; then
        kill "$server" 2>/dev/null || true
        wait "$server" 2>/dev/null || true
    fi
    rm -rf "$folder"
}
trap clean_up EXIT

cat >"$folder/xorg.conf" <<'CONFIGURATION'
Section "Device"
    Identifier "device"
    Driver "dummy"
    VideoRam 65536
EndSection
Section "Screen"
    Identifier "screen"
    Device "device"
    DefaultDepth 24
    SubSection "Display"
        Depth 24
        Virtual 4096 2048
    EndSubSection
EndSection
CONFIGURATION

Xorg -displayfd 3 -config "$folder/xorg.conf" -logfile "$folder/log" -nolisten tcp -noreset \
    -novtswitch -sharevts 3>"$folder/display" >"$folder/output" 2>&1 &
server=$!
for ((attempt = 0; attempt < 150; ++attempt)); do
    [[ -s "$folder/display" ]] && break
    kill -0 "$server" 2>/dev/null || break
    sleep 0.1
done
if [[ ! -s "$folder/display" ]]; then
    tail -n 5 "$folder/output" || true
    skip "the X server cannot be started"
fi

DISPLAY=":$(<"$folder/display")" QT_QPA_PLATFORM=xcb "$@"

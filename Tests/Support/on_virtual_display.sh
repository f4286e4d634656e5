#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# Runs a program on a display that nobody sees, in windows that a window manager looks after.
#
#   on_virtual_display.sh <program> [<argument>...]
#
# With ctest as the program, all tests are run there, except for those that bring a display along.
#
# Needs the Debian packages xvfb, xauth, openbox and xdotool. Where they are not installed, says so
# and ends with 77: skipped.
set -euo pipefail

# Nothing here draws with OpenGL, and a driver that is unloaded at the end leaks under the sanitizers.
export QT_XCB_GL_INTEGRATION=none

for command in xvfb-run xauth openbox xdotool; do
    if ! command -v "$command" >/dev/null; then
        echo "Skipped: $command is not installed"
        exit 77
    fi
done

# Of the usual resolution, which is also that of the screens that tests add.
# The program begins when the window manager answers.
# shellcheck disable=SC2016
QT_QPA_PLATFORM=xcb SCHEDULER_TEST_PLATFORM=xcb \
    exec xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24 -dpi 96" \
    bash -c '
        openbox 2>/dev/null &
        for ((attempt = 0; attempt < 100; ++attempt)); do
            xdotool get_desktop >/dev/null 2>&1 && break
            sleep 0.1
        done
        "$@"' bash "$@"

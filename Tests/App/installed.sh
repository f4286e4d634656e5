#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# installed.sh BUILD_DIR: installs the application into a prefix and checks what came there.
set -euo pipefail

prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$1" --prefix "$prefix" >/dev/null

"$prefix/bin/px-scheduler" --version
QT_QPA_PLATFORM=offscreen "$prefix/bin/px-scheduler" --screenshots "$prefix/pictures" 2>/dev/null
test -s "$prefix/pictures/01-schedule.png"
test -s "$prefix/share/icons/hicolor/scalable/apps/px-scheduler.svg"
desktop-file-validate "$prefix/share/applications/org.zentor.PxScheduler.desktop"
appstreamcli validate --no-net "$prefix/share/metainfo/org.zentor.PxScheduler.metainfo.xml"
bash -n "$prefix/share/bash-completion/completions/px-scheduler"
pages=("$prefix/share/man/man1/px-scheduler.1")
if [[ -e "$prefix/bin/px-recorder" ]]; then
    "$prefix/bin/px-recorder" --version
    bash -n "$prefix/share/bash-completion/completions/px-recorder"
    pages+=("$prefix/share/man/man1/px-recorder.1")
fi
for page in "${pages[@]}"; do
    warnings=$(man --warnings --local-file "$page" 2>&1 >/dev/null)
    test -z "$warnings" || { echo "$warnings"; exit 1; }
done
echo "The installed application is complete."

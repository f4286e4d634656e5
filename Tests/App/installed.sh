#!/usr/bin/env bash
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
warnings=$(man --warnings --local-file "$prefix/share/man/man1/px-scheduler.1" 2>&1 >/dev/null)
test -z "$warnings" || { echo "$warnings"; exit 1; }
echo "The installed application is complete."

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# packages.sh FOLDER: installs the Debian packages that ./package has put into the folder, builds a
# project against them, starts the programs, removes all of it, and proves that nothing is left. Needs
# the right to install.
set -euo pipefail
packages=$(cd "$1" && pwd)
cd "$(dirname "$0")/../.."
source tools/setup.sh

work=$(mktemp -d)
files=()
names=(pxuischedulerwidgets-doc libpxuischedulerwidgets-dev libpxuischedulerwidgets-data px-scheduler
    libpxuischedulerwidgets0.1)
remove() {
    as_root dpkg --purge "${names[@]}" >/dev/null
}
clean_up() {
    remove 2>/dev/null || true
    rm -rf "$work"
}
if [[ -n "$(dpkg-query -W -f '${Package}' libpxuischedulerwidgets0.1 2>/dev/null)" ]]; then
    echo "The packages are installed already: this test would remove them." >&2
    exit 1
fi
trap clean_up EXIT

# What package managers note for themselves, and indexes that they keep, are no part of a package.
files_of_the_system() {
    find /etc /opt /usr /var -xdev \
        \( -path /var/lib/dpkg -o -path /var/lib/apt -o -path /var/cache -o -path /var/log \
        -o -path /var/tmp -o -name '*.cache' \) -prune -o -print | sort
}

files_of_the_system >"$work/before"
for name in "${names[@]}"; do
    files+=("$packages/${name}"_*.deb)
done
as_root dpkg --install "${files[@]}" >/dev/null

cmake -S Tests/Consumer/Installed -B "$work/shared" -G Ninja >/dev/null
cmake --build "$work/shared" >/dev/null
ctest --test-dir "$work/shared" --output-on-failure --no-tests=error
ldd "$work/shared/consumer" | grep -E "libPXUiSchedulerWidgets\.so\.0\.1 => (/usr)?/lib/"

cmake -S Tests/Consumer/Installed -B "$work/static" -G Ninja -DSTATIC=ON >/dev/null
cmake --build "$work/static" >/dev/null
ctest --test-dir "$work/static" --output-on-failure --no-tests=error

make -C "$work" -f "$PWD/Tests/Consumer/Installed/Makefile" SOURCE_DIR="$PWD/Tests/Consumer/Installed" \
    MOC="$(pkg-config --variable=host_bins Qt5Core)/moc"
QT_QPA_PLATFORM=offscreen "$work/consumer"

px-scheduler --version
px-recorder --version
QT_QPA_PLATFORM=offscreen px-scheduler --screenshots "$work/pictures" 2>/dev/null
test -s "$work/pictures/01-schedule.png"
man --warnings px-scheduler >/dev/null

remove
files_of_the_system >"$work/after"
diff "$work/before" "$work/after"
echo "Installed, used and removed without a trace."

# Sourced by ./run and ./test: installs what a bare Debian 12 machine lacks.

build_packages=(
    ca-certificates cmake g++ git ninja-build
    libboost-dev libgoogle-glog-dev libqt5svg5-dev qtbase5-dev qttools5-dev qttools5-dev-tools
)
run_packages=(
    fonts-dejavu-core fonts-noto-cjk fonts-noto-core libqt5svg5 qt5-gtk-platformtheme
    qttranslations5-l10n
)
test_packages=(
    at-spi2-core clang-format-14 clang-tidy-14 dbus-x11 libclang-rt-14-dev openbox qtbase5-private-dev
    x11-utils xauth xdotool xvfb
)

# install_packages PACKAGE...: asks nobody, and does nothing when all are there.
install_packages() {
    local missing=()
    local package
    for package in "$@"; do
        if ! dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed; then
            missing+=("$package")
        fi
    done
    if [ ${#missing[@]} -eq 0 ]; then
        return
    fi
    echo "Installing: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -q
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}"
}

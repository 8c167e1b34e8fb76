# Debian packages that Velmora needs, and their installation. Sourced by ./run, ./test and ./check.

# To build it.
build_packages=(
    g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    libgl-dev libxcb1-dev libxcb-xkb-dev libxcb-xtest0-dev libxcb-xinput-dev libxcb-shape0-dev
    libxcb-randr0-dev libxkbcommon-dev libxkbcommon-x11-dev libglib2.0-dev libfontconfig-dev libpng-dev
    libwayland-dev libwayland-bin wayland-protocols plasma-wayland-protocols qt6-base-private-dev
    bootstrap-icons
)
# To use it: the shell for commands, a font, the texts of Qt's own menus, default handlers.
runtime_packages=(
    zsh fonts-dejavu-core libqt6svg6 qt6-wayland qt6-translations-l10n shared-mime-info desktop-file-utils
)
# For the guided session of ./run on a machine without a display.
demo_packages=(xvfb openbox xdotool imagemagick x11-utils fonts-noto-cjk)
# For packaging/pictures, beside those.
picture_packages=(xsettingsd x11-xserver-utils)
# For ./test.
test_packages=(
    libgtest-dev libgmock-dev xvfb openbox xfwm4 i3-wm picom dbus x11-utils x11-xserver-utils x11-xkb-utils
    fonts-noto-cjk trayer xfce4-panel strace
)

# For ./check.
check_packages=(clang-format clang-tidy cppcheck codespell desktop-file-utils)

# For the benchmarks: what Velmora is compared with on the same display.
bench_packages=(libbenchmark-dev xvfb sxhkd xbindkeys)

# install_missing PACKAGE...: installs those that are not there, as root or through sudo.
install_missing() {
    local installed missing=() package
    installed=$(dpkg-query -W -f '${Package} ${Status}\n' "$@" 2>/dev/null) || true
    for package in "$@"; do
        grep -qx "$package install ok installed" <<<"$installed" || missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    local as_root=()
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            echo "Please install as root: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing with apt-get: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

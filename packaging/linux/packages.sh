# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# Which Debian and Ubuntu packages Zephrine is built, shown and tested with, and how missing ones
# are installed. Sourced by ./run and ./test, which ask for the lists that they need.

# shellcheck disable=SC2034  # the lists are used by the scripts that source this file
build_packages=(
    g++ cmake ninja-build pkg-config
    qt6-base-dev libglib2.0-dev libxcb1-dev nlohmann-json3-dev
    fonts-dejavu-core
)
# A private desktop for machines without one: tests/desktop/desktop.py.
# shellcheck disable=SC2034
desktop_packages=(
    xvfb openbox xfce4-panel dbus-daemon
    python3 python3-jeepney python3-pil
    x11-xserver-utils xdotool
)

# shellcheck disable=SC2034
test_packages=(
    libgtest-dev libgmock-dev clang-format
    locales ccache procps python3 strace
    fonts-cantarell fonts-inter
)

# The panels that the status item is tried on, a load to show, and what reads windows: off the
# screen, out of their properties, and as a screen reader does; then readers of autostart entries,
# and stand-ins for services.
# shellcheck disable=SC2034
panel_packages=(
    lxqt-panel mate-panel libglib2.0-bin trayer tint2
    stress-ng tesseract-ocr tesseract-ocr-eng
    x11-utils at-spi2-core gir1.2-atspi-2.0 python3-gi
    dex desktop-file-utils python3-dbusmock xsettingsd
)

# Prints what the panels of these hosts need besides, for those that ./test leaves out.
heavy_panel_packages() {
    local host
    for host in "$@"; do
        case $host in
            gnome) echo gnome-shell gnome-shell-extension-appindicator ;;
            i3bar) echo i3-wm ;;
            cinnamon) echo cinnamon xapp-sn-watcher ;;
            plasma) echo plasma-desktop plasma-workspace ;;
            budgie) echo budgie-core ;;
            waybar) echo waybar sway xwayland ;;
            swaybar | sway) echo sway xwayland ;;
        esac
    done
}

# Checking the macOS back end against declarations: tests/macos/check.
# shellcheck disable=SC2034
macos_packages=(
    clang lld llvm libc++-dev libc++abi-dev
    libc6-dev-arm64-cross
)

# Prints those of the packages "$@" that are not installed. Other systems than Debian's have other
# names for them: there, everything counts as installed, and what is missing shows in the build.
missing_packages() {
    command -v dpkg-query >/dev/null || return 0
    # shellcheck disable=SC2016  # the fields are dpkg-query's to fill in
    local installed package format='${db:Status-Status} ${Package}\n'
    installed=$(dpkg-query --show --showformat "$format" "$@" 2>/dev/null) || true
    for package in "$@"; do
        [[ $'\n'$installed$'\n' == *$'\n'"installed $package"$'\n'* ]] || echo "$package"
    done
}

# install_packages LOG PACKAGE...: installs what is missing, after saying what. What apt prints
# goes to the file LOG, and to the terminal only when something fails.
install_packages() {
    local log=$1 missing as_root=()
    shift
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0

    local install=(apt-get install --yes --no-install-recommends "${missing[@]}")
    echo "Installing packages that are missing here: ${missing[*]}"
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            printf '%s\n' "This needs root, and there is no sudo here. As root, run:" \
                "    apt-get update && ${install[*]}" "and start again." >&2
            return 1
        fi
        as_root=(sudo)
    fi
    as_root+=(env DEBIAN_FRONTEND=noninteractive)
    mkdir -p "$(dirname "$log")"
    if ! { "${as_root[@]}" apt-get update && "${as_root[@]}" "${install[@]}"; } \
        </dev/null >"$log" 2>&1; then
        tail -n 30 "$log" >&2
        echo "The installation failed; all of its output is in $log." >&2
        return 1
    fi
}

# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
# Sourced by run, test and the like: the Debian packages that building, running, testing and checking need.
# shellcheck shell=bash disable=SC2034

BUILD_PACKAGES=(build-essential cmake ninja-build pkg-config qt6-base-dev qt6-multimedia-dev qtkeychain-qt6-dev
    libxcb1-dev libgl1-mesa-dev)
# Fonts: Latin and symbols, the metric twins of the usual office faces, Japanese, Chinese and Korean, emoji. Then what
# QtKeychain loads at run time where the desktop has a secret service.
RUN_PACKAGES=(fonts-dejavu-core fonts-liberation fonts-noto-cjk fonts-noto-color-emoji libsecret-1-0)
DISPLAY_PACKAGES=(xvfb openbox x11vnc x11-apps imagemagick)
PACKAGING_PACKAGES=(dpkg-dev file lintian)
CHECK_PACKAGES=(clang-format clang-tidy shellcheck desktop-file-utils appstream)
PICTURE_PACKAGES=(imagemagick x11-xserver-utils trayer)
TEST_PACKAGES=(python3 python3-aiosmtpd dbus-daemon xvfb xauth openbox xdotool x11-utils clang libclang-rt-14-dev)

# Installs those of the packages that are not there; asks apt for nothing when all are.
install_packages() {
    local missing=() name
    for name in "$@"; do
        dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    command -v apt-get >/dev/null || { echo "Please install: ${missing[*]}" >&2; return 1; }
    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    echo "Installing ${missing[*]}"
    # Another program may be installing too; it is waited for.
    local apt=("${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
    "${apt[@]}" update
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >/dev/null
}

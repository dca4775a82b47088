# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
# Sourced by run and test: the Debian packages that building, running and testing need.
# shellcheck shell=bash disable=SC2034

BUILD_PACKAGES=(build-essential cmake ninja-build pkg-config qt6-base-dev qt6-multimedia-dev libxcb1-dev libgl1-mesa-dev)
# Fonts: Latin and symbols, the metric twins of the usual office faces, Japanese, Chinese and Korean, emoji.
RUN_PACKAGES=(fonts-dejavu-core fonts-liberation fonts-noto-cjk fonts-noto-color-emoji)
DISPLAY_PACKAGES=(xvfb openbox x11vnc x11-apps imagemagick)
TEST_PACKAGES=(python3 xvfb openbox xdotool x11-utils clang libclang-rt-14-dev)

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
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

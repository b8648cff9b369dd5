#!/usr/bin/env bash
# Installs everything needed to build, test and run MQ48 Pin Forge on Debian 12.
set -euo pipefail
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
PACKAGES=(
    build-essential cmake ccache python3
    qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5-dev
    libqscintilla2-qt5-dev libquazip1-qt5-dev
    libgtest-dev
    fonts-noto-cjk fonts-dejavu-core
    xvfb xauth
    gcc-arm-none-eabi libnewlib-arm-none-eabi
    poppler-utils
)
missing=()
for p in "${PACKAGES[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    $SUDO apt-get update
    DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y "${missing[@]}"
fi

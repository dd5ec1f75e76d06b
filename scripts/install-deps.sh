#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the Debian 12 packages that building and testing fmtask need, and only those missing.
# Extra package names given as arguments are installed too. Uses sudo when not run as root.
set -euo pipefail

# Building and the dialog's tests, then the tools that rendering runs and the tests read outputs
# with, then the print path's own: a private CUPS, a virtual display, a key presser and a bus.
packages=(cmake g++ make qt6-base-dev qt6-tools-dev qt6-l10n-tools fontconfig fonts-dejavu-core
    ghostscript poppler-utils qpdf libtiff-tools netpbm libopenjp2-tools pdf2djvu djvulibre-bin
    zlib1g-dev openssl
    cups cups-client cups-bsd xvfb xdotool x11-utils dbus-daemon file xdg-utils "$@")
missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=()
[ "$(id -u)" -eq 0 ] || sudo=(sudo)
echo "Installing: ${missing[*]}"
"${sudo[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null

#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Takes the README's pictures from the program as it is now: builds fmtask, opens the dialog for
# the job "Document1" on a private virtual X server (96 dpi, Debian's default fonts) with settings
# of its own under /tmp, and captures the window, once in the platform's style and once in the
# program's own modern style.
#   scripts/screenshot.sh                              docs/fmtask.png, docs/fmtask-modern.png
#   scripts/screenshot.sh --language de --scale 2 --out /tmp/shots
#                                                      fmtask-de-x2.png, fmtask-modern-de-x2.png
# --language takes a shipped language (de, fr, es, it, pl, ru, pt_BR, zh_CN, ja) or en; --scale
# a Qt scale factor. BUILD_DIR sets the build folder. No real user's settings are read or written.
set -euo pipefail
cd "$(dirname "$0")/.."

build="${BUILD_DIR:-build}"
language=en
scale=1
out=docs
while [ $# -gt 0 ]; do
    case "$1" in
    --language) language="$2"; shift 2 ;;
    --scale) scale="$2"; shift 2 ;;
    --out) out="$2"; shift 2 ;;
    *) echo "usage: $0 [--language LANG] [--scale FACTOR] [--out FOLDER]" >&2; exit 2 ;;
    esac
done

# The locale a user of that language has; Chinese and Japanese need a font with their script.
fonts=()
case "$language" in
en) locale=en_US.UTF-8 ;;
pt_BR | zh_CN) locale="$language.UTF-8" ;;
ja) locale=ja_JP.UTF-8 ;;
*) locale="${language}_${language^^}.UTF-8" ;;
esac
case "$language" in zh_CN | ja) fonts=(fonts-noto-cjk) ;; esac
suffix=""
[ "$language" = en ] || suffix="-$language"
[ "$scale" = 1 ] || suffix="$suffix-x$scale"

scripts/install-deps.sh xvfb xdotool imagemagick "${fonts[@]}"
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
# The converter beside the program, so the dialog offers DjVu as installed: all twelve tabs.
cmake --build "$build" --target fmtask dxconv -j"$(nproc)"
mkdir -p "$out"

work="$(mktemp -d /tmp/fmtask-screenshot.XXXXXX)"
server=""
program=""
cleanup() {
    [ -z "$program" ] || kill "$program" 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

# A display number nobody uses, and a screen large enough for the window at any scale.
display=90
while [ -e "/tmp/.X$display-lock" ] || [ -e "/tmp/.X11-unix/X$display" ]; do
    display=$((display + 1))
done
Xvfb ":$display" -screen 0 2048x1536x24 -dpi 96 -nolisten tcp >/dev/null 2>&1 &
server=$!
for _ in $(seq 50); do
    DISPLAY=":$display" xdotool getdisplaygeometry >/dev/null 2>&1 && break
    sleep 0.1
done

# style value of the settings, picture name
for shot in ":fmtask" "WindowsXP:fmtask-modern"; do
    style="${shot%%:*}"
    name="${shot#*:}$suffix.png"
    mkdir -p "$work/config/Tarnwick" "$work/xdg" "$work/home"
    cat >"$work/config/Tarnwick/Vellumio.conf" <<INI
[General]
style=$style
format=pdf
Path=/home/avery/Documents/Prints/
INI
    env -i PATH="$PATH" HOME="$work/home" XDG_CONFIG_HOME="$work/config" \
        XDG_CONFIG_DIRS="$work/xdg" XDG_RUNTIME_DIR="$work" DISPLAY=":$display" \
        QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR="$scale" LANG="$locale" \
        "$build/fmtask" Document1 >/dev/null 2>&1 &
    program=$!
    window="$(DISPLAY=":$display" timeout 20 xdotool search --sync --onlyvisible --name '^Vellumio$' | head -n 1)"
    # The pointer starts in the middle of the screen, over the tabs: moved away, no tab is hovered.
    DISPLAY=":$display" xdotool mousemove 0 0
    sleep 1 # the first paint
    DISPLAY=":$display" import -window "$window" -strip -define png:exclude-chunks=date,time \
        "png:$out/$name"
    kill "$program"
    wait "$program" 2>/dev/null || true
    program=""
    echo "$out/$name"
done

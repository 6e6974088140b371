#!/usr/bin/env bash
# The whole instrument on this machine: builds it and starts the sensor unit in software with the program.
#
#   ./desk.sh              in a window (without a display: on a virtual one, to be looked at by VNC)
#   ./desk.sh measure      one whole measurement hands-free, at twenty times the speed
#   ./desk.sh gallery      pictures of every dialog in every language in out/gallery, and a look for cut-off texts
#   ./desk.sh ctl WORD...  says something to the running sensor unit; "ctl help" tells what it understands
#   ./desk.sh card in|out  plugs or pulls the internal memory card
#   ./desk.sh stick in [FOLDER] | stick out
#                          plugs a USB stick, with a copy of the folder as its content, or pulls it
#
# The board is the folder desk/, which stays from run to run.
set -euo pipefail
caller="$PWD"
cd "$(dirname "$0")"
. Tools/machine.sh

board="$PWD/desk"
bin="$PWD/build/release"

build() {
    need_packages build desk
    cmake --preset release >/dev/null
    cmake --build --preset release "$@"
}

# with_unit BOARD COMMAND...: runs the command beside a sensor unit at the board's serial line.
with_unit() {
    local at="$1"
    shift
    mkdir -p "$at/dev"
    ZARN_BOARD="$at" "$bin/SensorUnit/zarn-unit" --link "$at/dev/ttySAC0" --state "$at/unit.state" --control "$at/unit.ctl" -- "$@"
}

run_in_window() {
    build --target zarn-desk zarn-unit
    if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
        with_unit "$board" "$bin/Src/zarn-desk"
        return
    fi
    need_packages display
    export DISPLAY=:"${ZARN_DISPLAY:-99}"
    Xvfb "$DISPLAY" -screen 0 800x480x24 -nolisten tcp &
    local xvfb=$!
    trap 'kill $xvfb ${vnc:-} 2>/dev/null || true' EXIT
    sleep 1
    x11vnc -display "$DISPLAY" -localhost -forever -shared -nopw -quiet -bg -rfbport 5900 >/dev/null 2>&1 || true
    vnc=$(pgrep -n x11vnc || true)
    echo "No display here: look with a VNC viewer at 127.0.0.1:5900 (from elsewhere: ssh -L 5900:127.0.0.1:5900)."
    with_unit "$board" "$bin/Src/zarn-desk"
}

measure() {
    build --target zarn-measure zarn-unit
    local at="$PWD/out/board"
    mkdir -p "$PWD/out"
    echo "One measurement at twenty times the speed; on a unit as new; the log goes to out/measure.log"
    local status=0
    ZARN_OUT="$PWD/out" QT_QPA_PLATFORM=offscreen bin="$bin" \
        faketime -f '+0 x20' bash -c '
            mkdir -p "$1/dev"
            export ZARN_BOARD="$1"
            exec "$bin/SensorUnit/zarn-unit" --link "$1/dev/ttySAC0" --control "$1/unit.ctl" -- "$bin/Tools/zarn-measure"
        ' measure "$at" >out/measure.log 2>&1 || status=$?
    grep -aE '^(Verdict|File|measure):' out/measure.log || true
    echo "Pictures: out/1-ready.png to out/5-pumped-back.png"
    return $status
}

gallery() {
    build --target zarn-gallery
    mkdir -p out
    ZARN_BOARD="$PWD/out/gallery-board" "$bin/Tools/zarn-gallery" out/gallery 2>out/gallery.log | tee -a out/gallery.log | grep -v '^\[' || return "${PIPESTATUS[0]}"
}

# stick in [FOLDER] | stick out. Without a folder the stick has what it had before.
stick() {
    case "${1:-}" in
        in)
            if [ -n "${2:-}" ]; then
                local folder="$2"
                [[ "$folder" = /* ]] || folder="$caller/$folder"
                [ -d "$folder" ] || { echo "No such folder: $2" >&2; exit 2; }
                # Copied first: the folder may be the content that the stick has.
                rm -rf "$board/usb-stick.new"
                mkdir -p "$board/usb-stick.new"
                cp -R "$folder/." "$board/usb-stick.new/"
                rm -rf "$board/usb-stick"
                mv "$board/usb-stick.new" "$board/usb-stick"
            fi
            mkdir -p "$board/dev" "$board/usb-stick"
            : >"$board/dev/sda1" ;;
        out) rm -f "$board/dev/sda1" "$board/dev/sda1.content" ;;
        *) echo "usage: ./desk.sh stick in [FOLDER] | stick out" >&2; exit 2 ;;
    esac
}

case "${1:-}" in
    "") run_in_window ;;
    measure) measure ;;
    ctl) shift; exec "$bin/SensorUnit/zarn-unit" ctl "$board/unit.ctl" "$@" ;;
    gallery) gallery ;;
    stick) shift; stick "$@" ;;
    card)
        case "${2:-}" in
            in) mkdir -p "$board/dev"; : >"$board/dev/mmcblk0p1" ;;
            out) rm -f "$board/dev/mmcblk0p1" ;;
            *) echo "usage: ./desk.sh card in|out" >&2; exit 2 ;;
        esac ;;
    *) sed -n '2,12s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac

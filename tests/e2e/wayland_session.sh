#!/usr/bin/env bash
# Velmora in a Wayland session that offers XWayland, under headless weston: started plainly it
# runs on X11, where its target can float; asked for native Wayland, by QT_QPA_PLATFORM or by
# --platform, it runs there.
#   wayland_session.sh VELMORA DATA_DIR
set -euo pipefail
velmora=$1 data=$2

source "$(dirname "$0")/session.sh"
require weston Xwayland xdotool
prepare_home "$data"
unset QT_QPA_PLATFORM DISPLAY WAYLAND_DISPLAY
export XDG_RUNTIME_DIR=$home/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"

weston --backend=headless-backend.so --xwayland --socket=wayland-velmora --idle-time=0 \
  >"$home/weston.log" 2>&1 &
pids+=($!)
listening() { grep -q 'xserver listening on display' "$home/weston.log"; }
eventually listening || fail "weston offers no XWayland: $(cat "$home/weston.log")"
export WAYLAND_DISPLAY=wayland-velmora XDG_SESSION_TYPE=wayland
DISPLAY=$(sed -n 's/.*xserver listening on display \(:[0-9]*\).*/\1/p' "$home/weston.log")
export DISPLAY

ask() { "$velmora" --home "$home" --run "$1"; }
# Ends the copy started last and waits until it is gone, so that the next start is on its own.
quit() { "$velmora" --home "$home" --quit && wait "${pids[-1]}"; }
# The size, once the copy started last holds its home. Asked earlier, the question would take the
# home itself, and the start would hand over to it.
holds_home() { [ "$(cat "$home/app/.velmora.lock" 2>/dev/null)" = "${pids[-1]}" ]; }
size_when_up() { eventually holds_home && ask 'get size'; }
x11_window() { xdotool search --onlyvisible --name '^VELMORA$' >/dev/null; }

"$velmora" --home "$home" >"$home/velmora.out" 2>&1 &
pids+=($!)
[ "$(size_when_up)" = 64x96 ] || fail "Velmora did not start: $(cat "$home/velmora.out")"
eventually x11_window || fail "Velmora in a session with XWayland shows no X11 window"
quit

for how in "env QT_QPA_PLATFORM=wayland $velmora" "$velmora --platform wayland"; do
  $how --home "$home" >"$home/velmora.out" 2>&1 &
  pids+=($!)
  if ! size=$(size_when_up); then
    grep -q 'Could not find the Qt platform plugin "wayland"' "$home/velmora.out" &&
      { echo "SKIPPED: Qt's Wayland platform plugin is not installed"; exit 77; }
    fail "'$how' did not start: $(cat "$home/velmora.out")"
  fi
  [ "$size" = 64x96 ] || fail "'$how' opened at $size"
  ! x11_window || fail "'$how' runs on X11"
  quit
done
echo "passed: X11 through XWayland by default, native Wayland when asked"

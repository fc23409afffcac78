#!/usr/bin/env bash
# Velmora in a real X server: text dragged from another X client (XDND) onto the target, and
# text dropped through a second start. The answer is read back from the X clipboard.
#   drag_and_drop.sh VELMORA DRAG_SOURCE DATA_DIR
set -euo pipefail
velmora=$1 source=$2 data=$3

source "$(dirname "$0")/session.sh"
require Xvfb xdotool xclip xdpyinfo
start_xvfb 120 160 1024x768
prepare_home "$data"

"$velmora" --home "$home" >"$home/velmora.out" 2>&1 &
pids+=($!)
target=$(timeout 20 xdotool search --sync --onlyvisible --name '^VELMORA$' | head -1)
eval "$(xdotool getwindowgeometry --shell "$target")"
target_x=$((X + WIDTH / 2)) target_y=$((Y + HEIGHT - 30))
ask() { "$velmora" --home "$home" --run "$1"; }

# 1. A real drag from another program.
"$source" "2*sin(30)" 400 300 >/dev/null 2>&1 &
pids+=($!)
timeout 20 xdotool search --sync --onlyvisible --name "^drag source$" >/dev/null || fail "the drag source did not show"
sleep 0.3
xdotool mousemove 450 340 mousedown 1
for step in 1 2 3 4 5 6 7 8; do
  xdotool mousemove $((450 + (target_x - 450) * step / 8)) $((340 + (target_y - 340) * step / 8))
  sleep 0.05
done
sleep 0.2
xdotool mouseup 1

lit=""
for _ in $(seq 20); do
  [ "$(ask 'get ImageWell1')" = "target2" ] && { lit=yes; break; }
  sleep 0.05
done
[ -n "$lit" ] || fail "the target did not light after the drag"
answer=$(xclip -o -selection clipboard)
[ "$answer" = "1 " ] || fail "clipboard after the drag holds '$answer'"
ask 'get log' | grep -q 'Entered: 2\*sin(30)\\nOutput:1 \\n' || fail "no log lines for the drag"
sleep 1.3
[ "$(ask 'get ImageWell1')" = "target" ] || fail "the target did not come back"

# 2. A drop through a second start, as a desktop shortcut makes it.
"$velmora" --home "$home" --drop "1,000+5!"
answer=$(xclip -o -selection clipboard)
[ "$answer" = "1120 " ] || fail "clipboard after --drop holds '$answer'"
ask 'get log' | grep -q 'Entered: 1,000+5!' || fail "no log line for --drop"

# 3. The selection of another program, handed over by --drop-selection.
printf '%s' '3*4' | xclip -selection primary
"$velmora" --home "$home" --drop-selection
answer=$(xclip -o -selection clipboard)
[ "$answer" = "12 " ] || fail "clipboard after --drop-selection holds '$answer'"

"$velmora" --home "$home" --quit
echo "passed: drag, --drop and --drop-selection"

#!/usr/bin/env bash
# Velmora under a real window manager, openbox on Xvfb: the target stays above a window raised
# over it and cannot be maximised; a second start brings it back from the taskbar and from
# another workspace; grown from near each corner it stays whole on the screen and goes back where
# it was; an empty selection is never dropped.
#   window_manager.sh VELMORA OTHER_WINDOW DATA_DIR
set -euo pipefail
velmora=$1 other=$2 data=$3

source "$(dirname "$0")/session.sh"
require Xvfb openbox xdotool xprop xwininfo xclip xdpyinfo
screen_w=1280 screen_h=800
start_xvfb 161 200 ${screen_w}x${screen_h}
openbox >/dev/null 2>&1 &
pids+=($!)
managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }
eventually managed || fail "openbox did not start"
prepare_home "$data"

"$velmora" --home "$home" >"$home/velmora.out" 2>&1 &
pids+=($!)
w=$(timeout 20 xdotool search --sync --onlyvisible --name '^VELMORA$' | head -1)
ask() { "$velmora" --home "$home" --run "$1"; }
start_again() { "$velmora" --home "$home"; }

# 1. Above a window raised over it, and offered no maximising.
"$other" "an ordinary window" 0 0 >/dev/null 2>&1 &
pids+=($!)
o=$(timeout 20 xdotool search --sync --onlyvisible --name '^drag source$' | head -1)
xdotool windowmove "$o" 0 0 windowsize "$o" $screen_w $screen_h windowactivate --sync "$o" windowraise "$o"
above() {
  local stacking
  stacking=$(xprop -root _NET_CLIENT_LIST_STACKING | tr -d ',' | tr ' ' '\n' | grep '^0x')
  [ "$(grep -nx "$(printf '0x%x' "$w")" <<<"$stacking" | cut -d: -f1)" -gt \
    "$(grep -nx "$(printf '0x%x' "$o")" <<<"$stacking" | cut -d: -f1)" ]
}
eventually above || fail "a window raised over the target covers it"
kill "${pids[-1]}"
allowed=$(xprop -id "$w" _NET_WM_ALLOWED_ACTIONS)
case $allowed in *MAXIMIZE* | *RESIZE*) fail "the window manager lets the window be resized: $allowed" ;; esac

# 2. A second start brings it back, from the taskbar and from another workspace.
shown() {
  xwininfo -id "$w" | grep -q 'Map State: IsViewable' &&
    [ "$(xdotool get_desktop)" = "$(xdotool get_desktop_for_window "$w")" ]
}
xdotool windowminimize --sync "$w"
start_again
eventually shown || fail "a second start did not bring the minimised window back"
xdotool set_desktop_for_window "$w" 2
eventually sh -c "! xwininfo -id $w | grep -q IsViewable" || fail "the window did not leave the workspace"
start_again
eventually shown || fail "a second start did not bring the window back from another workspace"

# 3. Grown from near each corner, the whole window stays on the screen; back, it is where it was.
eval "$(xprop -id "$w" _NET_FRAME_EXTENTS | sed 's/.* = \(.*\), \(.*\), \(.*\), \(.*\)/left=\1 right=\2 top=\3 bottom=\4/')"
client() { xwininfo -id "$w" | awk '/Absolute upper-left X/{x=$4} /Absolute upper-left Y/{y=$4} /Width:/{w=$2} /Height:/{h=$2} END{print x, y, w, h}'; }
on_screen() {
  local x y cw ch
  read -r x y cw ch <<<"$(client)"
  [ "$cw" = "$1" ] && [ "$ch" = "$2" ] && [ $((x - left)) -ge 0 ] && [ $((y - top)) -ge 0 ] &&
    [ $((x + cw + right)) -le $screen_w ] && [ $((y + ch + bottom)) -le $screen_h ]
}
back_in_place() { [ "$(client)" = "$placed" ]; }
small_w=$((64 + left + right)) small_h=$((96 + top + bottom))
for corner in "0 0" "$((screen_w - small_w)) 0" "0 $((screen_h - small_h))" \
  "$((screen_w - small_w)) $((screen_h - small_h))"; do
  read -r fx fy <<<"$corner"
  xdotool windowmove "$w" $((fx + left)) $((fy + top))
  eventually on_screen 64 96 || fail "the small window was not put at $corner"
  placed=$(client)
  for grow in "click ImageWell1|800 600|click ImageWell1" "choose Settings|350 600|push PushButton2"; do
    IFS='|' read -r act size back <<<"$grow"
    ask "$act" >/dev/null
    eventually on_screen $size || fail "grown by '$act' from $corner, the window is at $(client)"
    ask "$back" >/dev/null
    eventually back_in_place || fail "back from '$act', the window is at $(client), not $placed"
  done
done

# 4. Nothing selected: nothing is dropped, by the running copy or by a start that runs alone.
printf '' | xclip -selection primary
printf '' | xclip -selection clipboard
drops() { ask 'get log' | awk '{ n += gsub(/Entered: /, "") } END { print n + 0 }'; }
entered=$(drops)
if "$velmora" --home "$home" --drop-selection 2>"$home/err"; then fail "an empty selection was dropped"; fi
grep -q 'nothing is selected' "$home/err" || fail "no word on an empty selection: $(cat "$home/err")"
[ "$(drops)" = "$entered" ] || fail "an empty selection reached the log"
"$velmora" --home "$home" --quit
if "$velmora" --home "$home" --drop-selection 2>"$home/err"; then fail "an empty selection started a copy"; fi
grep -q 'nothing is selected' "$home/err" || fail "no word on an empty selection: $(cat "$home/err")"
echo "passed: above, not maximisable, brought back, kept on screen, empty selection"

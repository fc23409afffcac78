#!/usr/bin/env bash
# SIGTERM, SIGINT and SIGHUP end Velmora as its close button does: formulas deleted in Evaluate
# mode are gone from VLmemory.txt afterwards. The last time with a message box up, which is
# closed first.
source "$(dirname "$0")/lib.sh"
need_gui
home=$(new_home signals)

# end_by SIGNAL ROWS_TO_TICK EXPECTED_MEMORY [box]
end_by() {
  local signal=$1 rows=$2 expected=$3 box=${4:-} row commands="choose Evaluate" _
  printf '1+1\n2*3\n4-5\n' > "$home/app/VLmemory.txt"
  start_gui "$home"
  for row in $rows; do commands+=$'\n'"click Listbox3 $row 1"; done
  ask "$home" "$commands"$'\n'"push PushButton46" >/dev/null
  if [ -n "$box" ]; then
    # A folder where the preferences go: Save Preferences puts up its message box and the
    # --run that pressed it waits for the box.
    mkdir "$home/prefs/VL3Preferences"
    timeout 40 "$VELMORA" --home "$home" --run "push PushButton42" --wait 30 >/dev/null 2>&1 &
    started+=($!)
    local up=""
    for _ in $(seq 20); do
      ask "$home" "get size" --wait 1 >/dev/null 2>&1 || { up=yes; break; }
      sleep 0.2
    done
    [ -n "$up" ] || fail "no message box came up"
  fi
  kill -s "$signal" "$gui_pid"
  ends_within "$gui_pid" 10 || fail "velmora did not end at SIG$signal"
  [ "$end_status" -eq 0 ] || fail "velmora exited $end_status at SIG$signal"
  [ "$(cat "$home/app/VLmemory.txt")" = "$(printf "$expected")" ] \
    || fail "after deleting rows $rows and SIG$signal the memory holds: $(cat "$home/app/VLmemory.txt")"
  rm -rf "$home/prefs/VL3Preferences"
}

end_by TERM 1 '1+1\n4-5\n'
end_by INT "0 2" '2*3\n'
end_by HUP 0 '2*3\n4-5\n' box
echo "passed: termination signals"

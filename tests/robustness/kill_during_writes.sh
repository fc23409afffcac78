#!/usr/bin/env bash
# kill -9 at random instants of one kind of write, checking the file after every kill (see
# kill_during_writes.py). Then the temporary files that killed writers left behind: the console
# still writes beside them, and the next start of the desktop program removes them, and only them.
#   kill_during_writes.sh memory|log|prefs KILLS
source "$(dirname "$0")/lib.sh"
kind=$1 kills=$2
home=$(new_home "$kind")

python3 "$here/kill_during_writes.py" "$kind" "$VELMORA_CLI" "$home" "$kills"

# Beside what the kills left: a temporary file of a writer that still runs, one that is not ours,
# and one of each file of a dead writer, so that there is something to remove whatever the kills left.
sh -c ':' & dead=$!
wait "$dead"
sleep 300 & live=$!
started+=("$live")
: > "$home/app/VLmemory.txt.tmp-$dead"
: > "$home/prefs/VL3Preferences.tmp-$dead"
: > "$home/app/VLmemory.txt.tmp-$live"
: > "$home/app/notes.txt.tmp-$dead"
stale() { find "$home/app" "$home/prefs" -name 'VL*.tmp-*' ! -name "*.tmp-$live" | sort; }
note "$(stale | wc -l) temporary files of dead writers"

# The console needs no clean-up: its writes go through files of its own.
before=0
[ -e "$home/app/VLmemory.txt" ] && before=$(wc -l < "$home/app/VLmemory.txt")
printf 'choose Calculate\nset EditField4 7*6\npush PushButton33\nquit\n' | cli "$home" 2>"$scratch/cli.err"
! grep -q 'message:' "$scratch/cli.err" || fail "the m key beside stale temporary files: $(cat "$scratch/cli.err")"
[ "$(tail -n 1 "$home/app/VLmemory.txt")" = "7*6" ] && [ "$(wc -l < "$home/app/VLmemory.txt")" = $((before + 1)) ] \
  || fail "the m key beside stale temporary files did not append its formula"

if [ -z "${VELMORA:-}" ]; then
  note "the desktop program is not built: its clean-up at start is not tried"
  exit 0
fi
start_gui "$home"
left=$(stale)
[ -z "$left" ] || fail "a start of velmora left these temporary files of dead writers: $left"
[ -e "$home/app/VLmemory.txt.tmp-$live" ] || fail "a start of velmora removed the temporary file of a running writer"
[ -e "$home/app/notes.txt.tmp-$dead" ] || fail "a start of velmora removed a file that is not its own"
quit_gui "$home" "$gui_pid"
echo "passed: $kind"

#!/usr/bin/env bash
# A FIFO in place of VLmemory.txt and of the day's log, a folder in place of VL3Preferences: every
# key that reads or writes them answers at once with a message box, and leaves them as they were.
source "$(dirname "$0")/lib.sh"
home=$(new_home fifo)

# The name of the day's log, from a save.
printf 'push PushButton3\nquit\n' | cli "$home" 2>/dev/null
log=$(cd "$home/app" && ls VLLog*.txt)
rm "$home/app/$log"
mkfifo "$home/app/VLmemory.txt" "$home/app/$log"
mkdir "$home/prefs/VL3Preferences"
identity() { stat -c '%F %i' "$home/app/VLmemory.txt" "$home/app/$log" "$home/prefs/VL3Preferences"; }
before=$(identity)

status=0
printf '%s\n' 'choose Calculate' 'set EditField4 1+2' 'push PushButton33' 'push PushButton34' \
  'push PushButton3' 'push PushButton42' quit \
  | timeout 10 "$VELMORA_CLI" --home "$home" >"$scratch/out" 2>"$scratch/err" || status=$?
[ "$status" -ne 124 ] || fail "velmora-cli hung on a FIFO"
[ "$status" -eq 0 ] || fail "velmora-cli exited $status: $(cat "$scratch/err")"
# One message each for m, mr, Save Log and Save Preferences; reading the memory at start and
# writing it at quitting may add theirs.
count=$(grep -c '^message: ' "$scratch/err" || true)
[ "$count" -ge 4 ] || fail "$count messages for four refused files: $(cat "$scratch/err")"
[ "$(identity)" = "$before" ] || fail "the files were replaced: $(identity)"
[ -z "$(ls -A "$home/prefs/VL3Preferences")" ] || fail "something was written into the folder VL3Preferences"
left=$(find "$home/app" "$home/prefs" -name '*.tmp-*')
[ -z "$left" ] || fail "temporary files left behind: $left"
echo "passed: FIFOs and a folder in the place of files"

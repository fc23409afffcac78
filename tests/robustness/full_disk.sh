#!/usr/bin/env bash
# A full disk under the formula memory, the saved logs and the preferences: every save that does
# not fit says so in a message box and leaves the old file whole, with no temporary file eating
# the little room there is, and the same saves work once there is room again. Needs a small file
# system of its own: a tmpfs, which only root can mount.
source "$(dirname "$0")/lib.sh"
home=$(new_home full)
for folder in app prefs; do
  mount -t tmpfs -o size=200k tmpfs "$home/$folder" 2>/dev/null || skip "cannot mount a tmpfs (not root?)"
  mounts+=("$home/$folder")
done
: > "$home/prefs/VL3Instr.txt"

# The old files: a formula of 20 kB in first place, a saved log, saved preferences.
python3 -c 'print("1" + "+1" * 10000)' > "$home/app/VLmemory.txt"
printf '2+2\n' >> "$home/app/VLmemory.txt"
printf 'choose Calculate\npush PushButton3\npush PushButton42\nquit\n' | cli "$home" 2>/dev/null
log=$(cd "$home/app" && ls VLLog*.txt)
cp -p "$home/app/VLmemory.txt" "$home/app/$log" "$home/prefs/VL3Preferences" "$scratch/"

# The field gets the long formula from mr; the log grows by a drop of 37 kB.
saves="choose Calculate
push PushButton34
drop $(python3 -c 'print("+".join(["12"] * 12500))')
push PushButton33
push PushButton3
set CheckBox2 true
push PushButton42
get messages
quit"

fill() { dd if=/dev/zero of="$1/filler" bs=4k 2>/dev/null || true; }
unchanged() {
  cmp -s "$scratch/VLmemory.txt" "$home/app/VLmemory.txt" || fail "$1: VLmemory.txt changed"
  cmp -s "$scratch/$log" "$home/app/$log" || fail "$1: $log changed"
  cmp -s "$scratch/VL3Preferences" "$home/prefs/VL3Preferences" || fail "$1: VL3Preferences changed"
  local left
  left=$(find "$home/app" "$home/prefs" -name '*.tmp-*')
  [ -z "$left" ] || fail "$1: temporary files left behind: $left"
}
# Each failed save shows its message box; the rewrite of the memory at quitting fails too.
messages() {
  local count
  count=$(grep -c '^message: An exception of class' "$scratch/err" || true)
  [ "$count" -ge "$2" ] || fail "$1: $count messages where $2 saves failed: $(cat "$scratch/err")"
}

# 1. Not one byte free.
fill "$home/app"; fill "$home/prefs"
printf '%s\n' "$saves" | cli "$home" >"$scratch/out" 2>"$scratch/err"
unchanged "a full disk"
messages "a full disk" 4

# 2. Room for the copy of the old file, not for the new text behind it.
rm "$home/app/filler"; fill "$home/app"; truncate -s -30K "$home/app/filler"
printf '%s\n' "$saves" | cli "$home" >"$scratch/out" 2>"$scratch/err"
cmp -s "$scratch/VLmemory.txt" "$home/app/VLmemory.txt" || fail "a nearly full disk: VLmemory.txt changed"
cmp -s "$scratch/$log" "$home/app/$log" || fail "a nearly full disk: $log changed"
messages "a nearly full disk" 3
left=$(find "$home/app" "$home/prefs" -name '*.tmp-*')
[ -z "$left" ] || fail "a nearly full disk: temporary files left behind: $left"

# 3. Room again: the same saves go through.
rm "$home/app/filler" "$home/prefs/filler"
printf '%s\n' "$saves" | cli "$home" >"$scratch/out" 2>"$scratch/err"
! grep -q '^message:' "$scratch/err" || fail "saves with room to spare: $(cat "$scratch/err")"
[ "$(sed -n 3p "$home/app/VLmemory.txt")" = "$(head -n 1 "$scratch/VLmemory.txt")" ] \
  || fail "the m key did not append its formula once there was room"
head -c "$(stat -c %s "$scratch/$log")" "$home/app/$log" | cmp -s - "$scratch/$log" && grep -q '^Entered: 12+12' "$home/app/$log" \
  || fail "Save Log wrote nothing once there was room"
cmp -s "$scratch/VL3Preferences" "$home/prefs/VL3Preferences" && fail "Save Preferences wrote nothing once there was room"
echo "passed: full disk"

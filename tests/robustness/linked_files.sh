#!/usr/bin/env bash
# Files kept elsewhere and linked in, as dotfile managers keep them: a save replaces the file at
# the end of the links, whole, keeps every link and the file's permissions, and leaves no
# temporary file on either side. Relative links, a chain of two links, and a link to a file that
# does not yet exist.
source "$(dirname "$0")/lib.sh"
home=$(new_home linked)
dots=$scratch/dotfiles/velmora
mkdir -p "$dots"

# The name of the day's log, from a save in another home.
other=$(new_home other)
printf 'push PushButton3\nquit\n' | cli "$other" 2>/dev/null
log=$(cd "$other/app" && ls VLLog*.txt)

printf '1+1\n' > "$dots/memory.real"
chmod 600 "$dots/memory.real"
ln -s memory.real "$dots/memory"
ln -s "$dots/memory" "$home/app/VLmemory.txt"                 # absolute, to a link
printf 'choose Calculate\npush PushButton42\nquit\n' | cli "$other" 2>/dev/null
cp "$other/prefs/VL3Preferences" "$dots/VL3Preferences"
ln -s ../../dotfiles/velmora/VL3Preferences "$home/prefs/VL3Preferences"   # relative
ln -s ../../dotfiles/velmora/log.txt "$home/app/$log"          # to a file still to come
links() { readlink "$home/app/VLmemory.txt" "$dots/memory" "$home/prefs/VL3Preferences" "$home/app/$log"; }
before=$(links)
old_preferences=$(cat "$dots/VL3Preferences")

printf '%s\n' 'choose Calculate' 'set EditField4 6*7' 'push PushButton33' 'push PushButton3' \
  'set CheckBox2 true' 'push PushButton42' quit | cli "$home" >/dev/null 2>"$scratch/err"
! grep -q '^message: ' "$scratch/err" || fail "saves through links: $(cat "$scratch/err")"

[ "$(links)" = "$before" ] || fail "links were replaced: $(ls -l "$home/app" "$home/prefs" "$dots")"
[ "$(printf '1+1\n6*7\n')" = "$(cat "$dots/memory.real")" ] || fail "the linked memory holds: $(cat "$dots/memory.real")"
[ "$(stat -c %a "$dots/memory.real")" = 600 ] || fail "the memory's mode 600 became $(stat -c %a "$dots/memory.real")"
[ -f "$dots/log.txt" ] && grep -q -- '--Log Saved at ' "$dots/log.txt" || fail "the log was not saved through its link"
new_preferences=$(cat "$dots/VL3Preferences")
[ "$new_preferences" != "$old_preferences" ] && [ "$(cut -d';' -f6 "$dots/VL3Preferences")" = True ] \
  || fail "the linked preferences hold: $new_preferences"
left=$(find "$scratch" -name '*.tmp-*')
[ -z "$left" ] || fail "temporary files left behind: $left"
echo "passed: saves through links"

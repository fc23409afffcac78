#!/usr/bin/env bash
# Another local user can neither receive what a user's second start hands over nor take the place
# of the user's running copy. Two throwaway users: A runs Velmora, B lays traps. Needs root.
source "$(dirname "$0")/lib.sh"
need_gui
[ "$(id -u)" -eq 0 ] || skip "needs root to make two users"
command -v useradd >/dev/null && command -v setpriv >/dev/null || skip "useradd or setpriv is missing"

# A copy of the program and its data that both users can read, wherever the build lies.
install=$scratch/install
mkdir -p "$install/bin" "$install/share/velmora"
cp "$VELMORA" "$install/bin/velmora"
cp -r "$VELMORA_DATA/VLSupport" "$VELMORA_DATA/../resources" "$install/share/velmora/"
cp "$here/squatter.py" "$install/"
chmod -R a+rX "$install"

# Users of this test that a run ended without its clean-up left behind.
while IFS=: read -r user _ _ _ _ folder _; do
  [[ $user =~ ^vlm[ab][0-9]+$ && $folder == /tmp/velmora-robustness.* ]] && ! pgrep -u "$user" >/dev/null \
    && userdel "$user"
done < <(cat /etc/passwd)
a=vlma$$ b=vlmb$$
for user in "$a" "$b"; do
  useradd --no-create-home --home-dir "$scratch/$user" --shell /bin/sh --user-group "$user" \
    || skip "useradd failed"
  on_exit+=("userdel $user")
  install -d -m 700 -o "$user" -g "$user" "$scratch/$user" "$scratch/$user/run"
done
ua=$(id -u "$a")
homeA=$scratch/$a/home runA=$scratch/$a/run
mv "$(new_home shared-a)" "$homeA"
chown -R "$a:$a" "$homeA"

# The commands as each user, in a clean environment; each execs the next, so that $! of one
# started in the background is the program itself.
as() { echo setpriv --reuid="$1" --regid="$1" --init-groups env -i PATH=/usr/bin:/bin; }
envA=(HOME="$scratch/$a" XDG_RUNTIME_DIR="$runA" QT_QPA_PLATFORM=offscreen)
velmoraA() { timeout 20 $(as "$a") "${envA[@]}" "$install/bin/velmora" "$@"; }
startA() {  # startA HOME: A's copy on HOME, in pidA once it holds the home
  $(as "$a") "${envA[@]}" "$install/bin/velmora" --home "$1" >>"$scratch/$a.out" 2>&1 &
  pidA=$!
  started+=("$pidA")
  local _
  for _ in $(seq 100); do [ "$(cat "$1/app/.velmora.lock" 2>/dev/null)" = "$pidA" ] && return 0; sleep 0.1; done
  fail "A's copy did not take $1: $(cat "$scratch/$a.out")"
}
squat() {  # squat PATH...: a trap of B's, listening once this returns
  $(as "$b") python3 "$install/squatter.py" "$trap_log" "$@" 2>>"$scratch/$b.err" &
  squatter=$!
  started+=("$squatter")
  local path _
  for _ in $(seq 50); do
    for path in "$@"; do [ -S "$path" ] || { sleep 0.1; continue 2; }; done
    return 0
  done
  fail "B's trap did not listen at $*: $(cat "$scratch/$b.err")"
}
trap_log=$scratch/$b/received
: > "$trap_log" && chown "$b" "$trap_log"
# A connection to a trap is logged a moment after the start that made it has ended.
nothing_received() { sleep 0.3; [ ! -s "$trap_log" ] || fail "$1: B's trap got: $(cat "$trap_log")"; }

# 1. A's copy on its own home; its socket lies in A's run-time folder.
startA "$homeA"
firstA=$pidA
for _ in $(seq 100); do [ "$(velmoraA --home "$homeA" --run 'get size' --wait 1 2>/dev/null)" = 64x96 ] && break; sleep 0.1; done
socketA=$(find "$runA" -maxdepth 1 -type s -name 'velmora-*')
[ -n "$socketA" ] || fail "A's copy does not listen in A's run-time folder: $(ls -la "$runA"; cat "$scratch/$a.out")"
name=$(basename "$socketA")

# 2. B cannot make anything where A's copies look for each other.
for place in "$runA" "$scratch/$a/.cache/velmora" "$scratch/$a/.cache" "$scratch/$a"; do
  ! $(as "$b") touch "$place/$name.b" 2>/dev/null || fail "B made a file in $place"
  ! $(as "$b") python3 -c "import socket,sys; socket.socket(socket.AF_UNIX).bind(sys.argv[1])" "$place/$name" 2>/dev/null \
    || fail "B made a socket in $place"
done

# 3. B's traps: the old shared place under A's uid, and in B's own open folder the name A's copy uses.
install -d -m 755 -o "$b" -g "$b" "$scratch/$b/open"
old_place=/tmp/velmora-$ua-$(printf %s "$homeA" | md5sum | cut -c1-16)
rm -f "$old_place" "/tmp/velmora-$ua"   # left by an earlier holder of this uid
on_exit+=("rm -f $old_place /tmp/velmora-$ua")
squat "$old_place" "/tmp/velmora-$ua" "$scratch/$b/open/$name"

# 4. A's second starts reach A's own copy, and B hears nothing.
velmoraA --home "$homeA" --drop 'my-secret' --wait 10 || fail "A's drop of my-secret failed"
velmoraA --home "$homeA" --drop '2*21' --wait 10 || fail "A's drop of 2*21 failed"
[ "$(velmoraA --home "$homeA" --run 'get clipboard')" = "42 " ] || fail "A's drop did not reach A's copy"
velmoraA --home "$homeA" --run 'get log' | grep -qF 'Entered: my-secret' || fail "my-secret did not reach A's copy"
nothing_received "A's drops"

# 5. A's copy answers no one else: root's request, though sent, is dropped unheard.
python3 - "$socketA" <<'PY' || fail "A's copy answered root's request"
import socket, struct, sys
s = socket.socket(socket.AF_UNIX)
s.settimeout(3)
s.connect(sys.argv[1])
request = b"drop\n3*3"
try:
    s.sendall(struct.pack(">I", len(request)) + request)
    answer = s.recv(100)
except (socket.timeout, ConnectionResetError, BrokenPipeError):
    answer = b""  # dropped before or after the request came
sys.exit(1 if answer else 0)
PY
[ "$(velmoraA --home "$homeA" --run 'get clipboard')" = "42 " ] || fail "A's copy took root's drop"

# 6. B's socket where A looks, as only root could place it: by its owner, and by its peer when
#    the file is made to look like A's. A's second start sends nothing either way.
mv "$socketA" "$socketA.real"
chmod 711 "$scratch/$a" && chmod 733 "$runA"
squat "$socketA"
chmod 700 "$scratch/$a" "$runA"
status=0
velmoraA --home "$homeA" --drop 'my-secret' --wait 2 2>"$scratch/err" || status=$?
[ "$status" -eq 1 ] && grep -q 'already runs on this home' "$scratch/err" \
  || fail "A's start beside B's socket: exit $status, $(cat "$scratch/err")"
nothing_received "a socket of B's where A looks"
chown "$a" "$socketA"
status=0
velmoraA --home "$homeA" --drop 'my-secret' --wait 5 2>"$scratch/err" || status=$?
[ "$status" -eq 1 ] && grep -q 'belongs to another user; nothing was sent' "$scratch/err" \
  || fail "A's start on B's listener in a file of A's: exit $status, $(cat "$scratch/err")"
for _ in $(seq 50); do grep -q "^closed on $socketA\$" "$trap_log" && break; sleep 0.1; done
grep -q "^closed on $socketA\$" "$trap_log" || fail "A's start never met B's listener: $(cat "$trap_log")"
! grep -q '^received on ' "$trap_log" || fail "B's listener got: $(grep '^received on ' "$trap_log")"
kill "$squatter" && wait "$squatter" 2>/dev/null || true
: > "$trap_log"
mv -f "$socketA.real" "$socketA"
[ "$(velmoraA --home "$homeA" --run 'get size')" = 64x96 ] || fail "A's copy is no longer reached"

# 7. A run-time folder of B's, open to all and holding a trap under the name A's socket has: A's
#    copies do not use it and meet in a private folder of A's own instead.
velmoraA --home "$homeA" --quit
ends_within "$firstA" 10 || fail "A's copy did not end at --quit"
envA=(HOME="$scratch/$a" XDG_RUNTIME_DIR="$scratch/$b/open" QT_QPA_PLATFORM=offscreen)
startA "$homeA"
velmoraA --home "$homeA" --drop '6*7' --wait 10 || fail "A's drop with B's run-time folder failed"
[ "$(velmoraA --home "$homeA" --run 'get clipboard')" = "42 " ] || fail "A's drop with B's run-time folder went astray"
[ -n "$(find "$scratch/$a/.cache/velmora" -type s -user "$a")" ] || fail "A's copy listens nowhere of A's"
nothing_received "A's drop with B's run-time folder"

velmoraA --home "$homeA" --quit
ends_within "$pidA" 10 || fail "A's copy did not end at --quit"
echo "passed: another user's traps"

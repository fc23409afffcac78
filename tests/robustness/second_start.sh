#!/usr/bin/env bash
# A second start on a home that a copy holds never becomes a second copy: against a stopped copy
# it gives up after --wait with a message and leaves the copy alone; a copy that is only busy is
# waited for; homes spelled differently reach the same copy.
source "$(dirname "$0")/lib.sh"
need_gui
home=$(new_home stopped)
start_gui "$home"
copies() { pgrep -f -- "--home .*stopped" | sort | tr '\n' ' '; }
one_copy() {
  [ "$(copies)" = "$gui_pid " ] || fail "$1: copies running: $(copies) (the first is $gui_pid)"
  [ "$(cat "$home/app/.velmora.lock")" = "$gui_pid" ] || fail "$1: the home's lock names $(cat "$home/app/.velmora.lock")"
}

# 1. Stopped: the second start ends after its wait, says why, and is no copy.
kill -STOP "$gui_pid"
start=$(date +%s%N)
status=0
timeout 30 "$VELMORA" --home "$home" --drop 2+2 --wait 3 >"$scratch/out" 2>"$scratch/err" || status=$?
took=$((($(date +%s%N) - start) / 1000000))
[ "$status" -eq 1 ] || fail "a start against a stopped copy exited $status: $(cat "$scratch/err")"
[ "$took" -lt 6000 ] || fail "a start with --wait 3 against a stopped copy took $took ms"
expected="velmora: Velmora already runs on this home (process $gui_pid) and has not answered in 3 s; it is left alone"
grep -qxF "$expected" "$scratch/err" || fail "the message was: $(cat "$scratch/err")"
one_copy "after giving up on a stopped copy"
note "a start against a stopped copy gave up after $took ms"

# 2. The copy goes on where it stopped, still holding the home.
kill -CONT "$gui_pid"
[ "$(ask "$home" 'get size')" = 64x96 ] || fail "the copy does not answer after SIGCONT"
one_copy "after SIGCONT"

# 3. Busy for three seconds: a start that may wait ten says it waits, and hands its drop over.
kill -STOP "$gui_pid"
timeout 30 "$VELMORA" --home "$home" --drop 5*5 --wait 10 >"$scratch/out" 2>"$scratch/err" &
waiting=$!
sleep 3
[ "$(cat "$home/app/.velmora.lock")" = "$gui_pid" ] || fail "a waiting start took the home"
kill -CONT "$gui_pid"
status=0
wait "$waiting" || status=$?
[ "$status" -eq 0 ] || fail "a start that waited for a busy copy exited $status: $(cat "$scratch/err")"
grep -q 'busy; waiting' "$scratch/err" || fail "a start that waits does not say so: $(cat "$scratch/err")"
[ "$(ask "$home" 'get clipboard')" = "25 " ] || fail "the drop after a wait did not reach the copy"

# 4. One home, many spellings: relative, with "..", a trailing slash, a link.
ln -s stopped "$scratch/alias"
n=0
for spelling in stopped ./stopped/ stopped/../stopped "$home/../stopped" "$home/" alias; do
  n=$((n + 1))
  (cd "$scratch" && timeout 20 "$VELMORA" --home "$spelling" --drop "$n*11" --wait 10) \
    || fail "a drop on the home spelled $spelling did not reach the copy"
  [ "$(ask "$home" 'get clipboard')" = "$((n * 11)) " ] || fail "the home spelled $spelling reached another copy"
  one_copy "after a drop on the home spelled $spelling"
done

quit_gui "$home" "$gui_pid"
echo "passed: second starts"

# Sourced by the robustness tests. CTest hands over the programs and the shipped data:
#   VELMORA_CLI   the console program
#   VELMORA       the desktop program (only where it is built)
#   VELMORA_DATA  the folder that holds VLSupport/
# Everything a test makes lives in one scratch folder; what it started is ended at exit.
set -euo pipefail
: "${VELMORA_CLI:?VELMORA_CLI is not set}" "${VELMORA_DATA:?VELMORA_DATA is not set}"
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

scratch=$(mktemp -d /tmp/velmora-robustness.XXXXXX)
chmod 755 "$scratch"
started=()   # processes this test started and must end
mounts=()    # file systems it mounted
on_exit=()   # further clean-up commands, run once those processes have ended
cleanup() {
  local step pid mount
  for pid in "${started[@]}"; do
    kill -CONT "$pid" 2>/dev/null || true
    kill -KILL "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
  done
  for step in "${on_exit[@]}"; do eval "$step" || true; done
  for mount in "${mounts[@]}"; do umount -l "$mount" 2>/dev/null || true; done
  rm -rf "$scratch"
}
trap cleanup EXIT
trap 'exit 143' TERM INT HUP

fail() { echo "FAILED: $*" >&2; exit 1; }
skip() { echo "SKIPPED: $*"; exit 77; }
note() { echo "-- $*"; }

# A home whose introduction has been seen, with its own copy of the data: new_home NAME.
new_home() {
  local home=$scratch/$1
  mkdir -p "$home/data" "$home/prefs" "$home/app"
  cp -r "$VELMORA_DATA/VLSupport" "$home/data/"
  : > "$home/prefs/VL3Instr.txt"
  echo "$home"
}

# Every start of a program is bounded in time, so that a fault that makes one hang fails the
# test, with its clean-up, before CTest's timeout ends it without one.

# The console on HOME, commands on standard input.
cli() { local home=$1; shift; timeout 60 "$VELMORA_CLI" --home "$home" "$@"; }

# The desktop program without a screen, with a run-time folder of the test's own so that its
# socket meets no other test's.
export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR=$scratch/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"

need_gui() { [ -n "${VELMORA:-}" ] || skip "the desktop program is not built"; }

# Runs console commands in the copy that holds HOME: ask HOME COMMANDS [velmora options].
ask() { local home=$1 commands=$2; shift 2; timeout 20 "$VELMORA" --home "$home" --run "$commands" --wait 10 "$@"; }

# Starts the desktop program on HOME (further arguments are passed on), sets gui_pid, and waits
# until it answers.
start_gui() {
  local home=$1; shift
  "$VELMORA" --home "$home" "$@" >>"$home/velmora.out" 2>&1 &
  gui_pid=$!
  started+=("$gui_pid")
  local _
  # Asked before it holds the home, a --run start would hold it for a moment itself.
  for _ in $(seq 100); do
    [ "$(cat "$home/app/.velmora.lock" 2>/dev/null)" = "$gui_pid" ] && break
    kill -0 "$gui_pid" 2>/dev/null || fail "velmora on $home ended at start: $(cat "$home/velmora.out")"
    sleep 0.1
  done
  for _ in $(seq 100); do
    kill -0 "$gui_pid" 2>/dev/null || fail "velmora on $home ended at start: $(cat "$home/velmora.out")"
    [ "$(ask "$home" 'get size' --wait 1 2>/dev/null)" = "64x96" ] && return 0
    sleep 0.1
  done
  fail "velmora on $home does not answer"
}

# Ends the copy on HOME, process PID, by --quit: quit_gui HOME PID.
quit_gui() {
  timeout 20 "$VELMORA" --home "$1" --quit --wait 10 || fail "--quit on $1 failed"
  ends_within "$2" 10 || fail "velmora on $1 did not end at --quit"
}

# Waits up to SECONDS for process PID, a child of this shell, to end, and sets its exit status
# in end_status: ends_within PID SECONDS.
ends_within() {
  local pid=$1 tenths=$(($2 * 10)) _
  for _ in $(seq "$tenths"); do
    if ! kill -0 "$pid" 2>/dev/null; then
      end_status=0
      wait "$pid" 2>/dev/null || end_status=$?
      return 0
    fi
    sleep 0.1
  done
  return 1
}

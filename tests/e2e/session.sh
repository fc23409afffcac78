# Shared by the end-to-end scripts, which source it: tools they need, background processes ended
# on exit, a scratch home, and an X server of their own.

fail() { echo "FAILED: $*"; exit 1; }

# Skips the test, as CTest is told by exit status 77, when a tool is missing.
require() {
  for tool; do
    command -v "$tool" >/dev/null || { echo "SKIPPED: $tool is not installed"; exit 77; }
  done
}

pids=()
home=$(mktemp -d)
cleanup() {
  # The newest first: programs go before the servers they show on.
  for ((i = ${#pids[@]} - 1; i >= 0; i--)); do kill "${pids[i]}" 2>/dev/null || true; done
  rm -rf "$home"
}
trap cleanup EXIT

# The home of Velmora under test: the shipped data, and the introduction seen.
prepare_home() {
  mkdir -p "$home/data" "$home/prefs"
  cp -r "$1/VLSupport" "$home/data/"
  : > "$home/prefs/VL3Instr.txt"
}

# Retries a command for up to about five seconds.
eventually() {
  for _ in $(seq 50); do "$@" && return 0; sleep 0.1; done
  return 1
}

# Xvfb on the first free display from FIRST to LAST, of SIZE, as DISPLAY; free of other tests' windows.
start_xvfb() {
  local first=$1 last=$2 size=$3 n
  for n in $(seq "$first" "$last"); do
    [ -e "/tmp/.X11-unix/X$n" ] || [ -e "/tmp/.X$n-lock" ] || break
  done
  Xvfb ":$n" -screen 0 "${size}x24" -nolisten tcp >/dev/null 2>&1 &
  pids+=($!)
  export DISPLAY=":$n"
  eventually xdpyinfo >/dev/null 2>&1 || fail "Xvfb did not start on :$n"
}

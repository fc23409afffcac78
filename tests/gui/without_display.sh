#!/usr/bin/env bash
# velmora with no display at all: what needs none answers, the rest says why and exits 1; Qt is
# never left to abort.
#   without_display.sh VELMORA
set -uo pipefail
velmora=$1
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
mkdir -m 700 "$home/runtime"
failed=0

# expect STATUS PATTERN ARGUMENTS...: the exit status, and a pattern the output must hold.
expect() {
  local want=$1 pattern=$2 out got
  shift 2
  out=$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM XDG_RUNTIME_DIR="$home/runtime" \
    "$velmora" --home "$home" "$@" 2>&1)
  got=$?
  if [ "$got" != "$want" ] || ! grep -q -- "$pattern" <<<"$out"; then
    echo "FAILED: velmora $*: exit status $got (not $want), or no '$pattern' in:"
    echo "$out"
    failed=1
  fi
}

expect 0 'wayland' --help
expect 0 '^velmora [0-9]' --version
expect 1 'no display to show the window on'
expect 1 'no display for the window system xcb' --platform xcb
expect 1 'no display for the window system wayland' --platform wayland
expect 1 'no display to show the window on' --drop '2+3'
expect 1 'no running copy' --run 'get size'
expect 0 '' --quit
expect 2 'takes xcb or wayland' --platform mir
exit $failed

#!/usr/bin/env bash
# Installs the Debian 12 packages that building, testing and running Velmora need.
# Skips what is already there, so it is cheap to run before every build.
set -euo pipefail

packages=(
  build-essential cmake pkg-config
  qt6-base-dev qt6-multimedia-dev libqt6opengl6-dev
  libpugixml-dev libpcre2-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  xvfb xauth
  # the end-to-end tests: a real drag from a second X client, the X clipboard read back; the
  # window under a window manager; a Wayland session with XWayland, and Qt's Wayland platform
  xdotool xclip x11-utils openbox weston xwayland qt6-wayland
  python3
  # the robustness tests: pgrep tells which copies run
  procps
  # packaging: the .deb (dpkg-shlibdeps finds its run-time dependencies), its desktop files' checks
  # and lintian's
  dpkg-dev fakeroot file desktop-file-utils appstream lintian
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ ${#missing[@]} -gt 0 ]; then
  sudo_cmd=()
  [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
  export DEBIAN_FRONTEND=noninteractive
  "${sudo_cmd[@]}" apt-get update -qq
  "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

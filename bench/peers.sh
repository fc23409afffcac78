#!/usr/bin/env bash
# Velmora against the calculators people already use, measured in one run:
#   bench/peers.sh [RUNS]
# Installs the peers (qalc, units, muparser) for the measurement only, builds Velmora for
# release in build-release, and prints the tables that the README quotes.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
sudo_cmd=()
[ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
missing=()
for p in qalc units libmuparser-dev time; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
cmake -S . -B build-release -DCMAKE_BUILD_TYPE=Release -DVELMORA_BENCH=ON -DVELMORA_GUI=ON >/dev/null
cmake --build build-release -j2 --target velmora velmora-cli velmora_bench >/dev/null
python3 bench/peers.py build-release "${1:-30}"

#!/usr/bin/env bash
# Installs what is missing, builds and starts Velmora. Arguments go to the program.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j2 >/dev/null
if [ -x build/src/velmora ]; then
  exec build/src/velmora "$@"
fi
exec build/src/velmora-cli "$@"

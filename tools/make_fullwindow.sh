#!/usr/bin/env bash
# Make resources/fullwindow1.jpg and resources/fullwindow2.jpg, the introduction window's
# pictures of the expanded main window, from the program's own rendering, and their @2x
# variants, rendered at twice the scale for screens scaled by 1.5 or 2.
#
# Usage:
#     tools/make_fullwindow.sh [BUILD_DIR] [OUTDIR]
#
# BUILD_DIR (default: build) is a configured build tree; the helper velmora-fullwindow is built
# there if need be. OUTDIR defaults to resources/ beside this tools/ folder. The pictures follow
# the fonts and the style Qt finds, so a run on another machine may differ in the pixels; where
# each part stands is fixed by the hot-spots of the introduction window, whatever the fonts.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$here/build}
out=${2:-$here/resources}

cmake --build "$build" --target velmora-fullwindow >/dev/null
tool=$(find "$build" -name velmora-fullwindow -type f -perm -u+x | head -1)
[ -n "$tool" ] || { echo "make_fullwindow.sh: velmora-fullwindow not found in $build" >&2; exit 1; }
for scale in 1 2; do
  QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=$scale "$tool" "$out"
done
echo "wrote fullwindow1.jpg, fullwindow2.jpg and their @2x variants in $out"

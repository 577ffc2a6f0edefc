#!/usr/bin/env bash
# Renders icon_for_test.svg to the 1024 x 1024 PNG that the icon tool exports when no other picture is chosen. The PNG is kept
# in the tree so that neither the build nor the program needs an SVG renderer for it. Needs librsvg2-bin; run it after every
# change of the drawing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
rsvg-convert --width 1024 --height 1024 icon_for_test.svg --output icon_for_test.png

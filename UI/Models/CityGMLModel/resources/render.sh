#!/bin/sh
# Renders the pictures anew from their drawings; needs rsvg-convert.
set -e
cd "$(dirname "$0")"
for drawing in *.svg; do
    rsvg-convert --width 64 --height 64 --output "${drawing%.svg}.png" "$drawing"
done

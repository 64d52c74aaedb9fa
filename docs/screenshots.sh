#!/usr/bin/env bash
# Makes the pictures of the desktop program in docs/pictures/ anew, on a display of its own. Needs the build and xvfb.
#
#   docs/screenshots.sh [FILE [FOLDER]]    FILE is shown in place of an example, FOLDER takes the pictures
set -euo pipefail
root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
document=${1:-$root/examples/district.gml}
folder=${2:-$root/docs/pictures}
mkdir -p "$folder"

# Settings of the user would show in the pictures.
settings=$(mktemp -d)
trap 'rm -r "$settings"' EXIT

# A program on a display of its own, in a locale.
on_display() {
    local locale=$1
    shift
    env XDG_CONFIG_HOME="$settings" XDG_DATA_HOME="$settings" LC_ALL="$locale" LANGUAGE= QT_QPA_PLATFORM=xcb \
        QT_FONT_DPI=80 xvfb-run -a -s "-screen 0 3200x2000x24" "$@"
}

# A picture by that name, in a locale, with further options of the program.
picture() {
    local name=$1 locale=$2
    shift 2
    on_display "$locale" "$root/build/bin/tolvik-viewer" "$@" --picture "$folder/$name.png" "$document"
}

picture light en_US.UTF-8 --colours light
picture dark en_US.UTF-8 --colours dark
picture french fr_FR.UTF-8 --colours light
picture german de_DE.UTF-8 --colours light
QT_SCALE_FACTOR=2 picture double en_US.UTF-8 --colours light
# Of single parts: the table, the preview of an import, the properties of several features.
on_display en_US.UTF-8 "$root/build/tests/viewer-pictures" "$folder"

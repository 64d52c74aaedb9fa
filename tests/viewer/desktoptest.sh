#!/usr/bin/env bash
# Has the tools of the desktop look at the files by which it knows the program.
#
#   desktoptest.sh FOLDER    FOLDER has the files; ends with 77, which counts as skipped, where a tool is not there
set -euo pipefail
cd -- "$1"
for tool in desktop-file-validate appstreamcli update-mime-database; do
    if ! command -v "$tool" >/dev/null; then
        echo "there is no $tool"
        exit 77
    fi
done

output=$(desktop-file-validate tolvik-viewer.desktop)
[[ -z $output ]] || { echo "$output"; exit 1; }
appstreamcli validate --no-net tolvik-viewer.metainfo.xml

# A document is known by its root, also under a name that says nothing, and by its ending.
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
mkdir -p "$folder/mime/packages"
cp tolvik-viewer-mime.xml "$folder/mime/packages"
output=$(XDG_DATA_HOME=$folder update-mime-database "$folder/mime" 2>&1)
[[ -z $output ]] || { echo "$output"; exit 1; }
grep -qxF "http://www.opengis.net/citygml/2.0 CityModel application/vnd.citygml+xml" "$folder/mime/XMLnamespaces" ||
    { echo "the root of a document is not known"; exit 1; }
grep -q '^60:application/vnd.citygml+xml:\*\.gml' "$folder/mime/globs2" || { echo "globs2 lacks *.gml"; exit 1; }

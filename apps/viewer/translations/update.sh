#!/usr/bin/env bash
# Brings the translations up to date with the texts in the source: new texts come in as unfinished, and texts
# that are gone leave.
#
#   apps/viewer/translations/update.sh [FOLDER]    FOLDER takes the files; without it, those here are changed
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../../.."
folder=${1:-apps/viewer/translations}

update() {
    # The compiler's include paths, without which texts would be listed under other classes than theirs.
    lupdate -silent -no-obsolete -locations none -source-language en_US -I . -I interfaces \
        apps/common apps/tables apps/viewer plugin platform scene UI "$@" 2>/dev/null
}

update -target-language fr_FR -ts "$folder/tolvik_fr.ts"
update -target-language de_DE -ts "$folder/tolvik_de.ts"
# English is translated for the forms of singular and plural alone.
update -target-language en_US -pluralonly -ts "$folder/tolvik_en.ts"

#!/usr/bin/env bash
# Takes new texts of the sources into apps/viewer/translations; those without a translation are marked
# as unfinished, which a test finds.
set -euo pipefail
cd "$(dirname "$0")/../apps/viewer/translations"

sources=(.. ../../../src/measuring)
options=(-locations none -no-obsolete)
lupdate "${options[@]}" "${sources[@]}" -ts zalento_de.ts
lupdate "${options[@]}" "${sources[@]}" -ts zalento_fr.ts
# Of English the plural forms alone.
lupdate "${options[@]}" -pluralonly "${sources[@]}" -ts zalento_en.ts

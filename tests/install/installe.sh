#!/bin/bash
# Installs the build tree $1 into an empty folder and reads what the desktop will read there.
set -eu
construction=$1
cmake=$2
dossier=$(mktemp -d)
trap 'rm -rf "$dossier"' EXIT
"$cmake" --install "$construction" --prefix "$dossier" > /dev/null

echoue() { echo "$1" >&2; exit 1; }
for programme in sudoku sudoku-lot sudoku-scenario; do
  [ -x "$dossier/bin/$programme" ] || echoue "bin/$programme manque"
  ls "$dossier"/share/man/man*/"$programme".[16]* > /dev/null || echoue "page de manuel de $programme"
done

partage=$dossier/share
entree=$partage/applications/solver-de-sudoku.desktop
type=$(sed -n 's/.*<mime-type type="\([^"]*\)".*/\1/p' "$partage/mime/packages/solver-de-sudoku.xml")
icone=$(sed -n 's/^Icon=//p' "$entree")
programme=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$entree")
grep -q "^MimeType=$type;\$" "$entree" || echoue "l'entrée du bureau n'ouvre pas $type"
grep -q "^Exec=.* %f\$" "$entree" || echoue "l'entrée du bureau ne transmet pas le fichier"
[ -x "$dossier/bin/$programme" ] || echoue "Exec=$programme n'existe pas"
grep -q "<mediatype>$type</mediatype>" "$partage"/metainfo/*.xml || echoue "les métadonnées ne citent pas $type"
for cote in 48x48 128x128 scalable; do
  ls "$partage/icons/hicolor/$cote/apps/$icone".* "$partage/icons/hicolor/$cote/mimetypes/${type/\//-}".* > /dev/null ||
    echoue "icône de $cote"
done

# The validators, where they are installed.
valide() { ! command -v "$1" > /dev/null || "$@" > "$dossier/avis" 2>&1 || { cat "$dossier/avis"; exit 1; }; }
valide desktop-file-validate "$entree"
valide appstreamcli validate --no-net "$partage"/metainfo/*.xml
valide xmllint --noout "$partage/mime/packages/solver-de-sudoku.xml"

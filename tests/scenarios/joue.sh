#!/bin/sh
# joue.sh PROGRAM SESSION.txt: plays a session in a fresh copy of files/, all of one age, and compares what it
# prints with SESSION.expected. The folder that a file dialog prints is written "." there.
set -eu
programme=$1
session=$2
attendu=${session%.txt}.expected
fichiers=$(dirname "$session")/files
dossier=$(mktemp -d)
trap 'chmod -R u+w "$dossier"; rm -rf "$dossier"' EXIT
mkdir "$dossier/jeu"
cp -r "$fichiers/." "$dossier/jeu/"
chmod -R u+w "$dossier/jeu"
find "$dossier/jeu" -type f -exec touch -d 2026-01-01 {} +
cd "$dossier/jeu"
ici=$(pwd)
statut=0
"$programme" "$session" > "$dossier/brut" || statut=$?
sed "s|^\(fichier titre .* dossier \)\"$ici\"|\1\".\"|" "$dossier/brut" > "$dossier/obtenu"
head -n 1 "$session" # what is broken when this session fails
diff -u "$attendu" "$dossier/obtenu"
exit "$statut"

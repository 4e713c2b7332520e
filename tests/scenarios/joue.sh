#!/bin/sh
# joue.sh PROGRAM SESSION.txt: plays a session in a fresh copy of files/, all of one age, and compares what it
# prints with SESSION.expected. The folder that a file dialog prints is written "." there. What sessions do again and
# again has a word:
#   no grid yet     vierge "SYMBOLS", ouvre "FILE"
#   over a game     nouvelle "SYMBOLS", charge "FILE", recommence, valide, resout, suppose, parties (the library)
#   play            tape CELL "TEXT" (shows the cell), heure "DATE" (the clock too), gagne "DATE" "NAME" (by cell 16)
#   save            sauve "FILE" (where a name is asked for), ecrit "FILE" (where none is; shows that file)
#   the library     prend POSITION, nomme "NAME"
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
sed -E 's/^vierge (".*")$/click MnuInit\nanswer \1/
        s/^ouvre (".*")$/click MnuLoad\nanswer \1/
        s/^charge (".*")$/click MnuLoad\nanswer oui\nanswer \1/
        s/^nouvelle (".*")$/click MnuInit\nanswer oui\nanswer \1/
        s/^recommence$/click MnuRestart\nanswer oui/
        s/^valide$/click MnuReinit\nanswer oui/
        s/^resout$/click MnuSolver\nanswer oui/
        s/^suppose$/click MnuSolveur2\nanswer oui/
        s/^tape ([0-9]+) (".*")$/type \1 \2\nshow cell \1/
        s/^heure (".*")$/now \1\ntick\nshow LblChrono/
        s/^gagne ("[^"]*") (".*")$/now \1\ntype 16 "1"\nanswer \2\nanswer ok/
        s/^sauve (".*")$/click MnuSave\nanswer \1/
        s/^ecrit (".*")$/click MnuSave\nshow file \1/
        s/^parties$/click MnuPartie\nanswer oui/
        s/^prend (.*)$/select LstLoad \1\nclick BtOK/
        s/^nomme (".*")$/edit LstSave \1\nclick BtOK/' "$session" > "$dossier/session"
statut=0
"$programme" "$dossier/session" > "$dossier/brut" || statut=$?
sed "s|^\(fichier titre .* dossier \)\"$ici\"|\1\".\"|" "$dossier/brut" > "$dossier/obtenu"
head -n 1 "$session" # what is broken when this session fails
diff -u "$attendu" "$dossier/obtenu"
exit "$statut"

#!/bin/bash
# appels.sh SUDOKU: calls of the game that end by themselves. Each row: exit status, what the messages must hold,
# the words. No call touches a file but the image that it is to draw.
set -u
sudoku=$1
cd "$(mktemp -d)" || exit 1
trap 'rm -rf "$PWD"' EXIT
export HOME=$PWD
printf '1234\r\n10 0 0 0 0 020 0 030 0 0 0 0 040\r\n\0' > jeu.sud
{ printf '123456789\r\n'; printf '10%.0s' {1..81}; printf '\r\n\0'; } > plein.sud
ln -s jeu.sud jeu.png
echo notes > notes.txt
echo ancien | tee a.png a.svg > a.pdf
mkdir d.png
echec=0
dit() { echo "$*"; echec=1; }

essai() {
  local statut=$1 tenu=$2 avant dit rendu
  shift 2
  avant=$(md5sum ./*.* 2> /dev/null; ls)
  dit=$("$sudoku" "$@" 2>&1)
  rendu=$?
  [ $rendu = "$statut" ] && [[ $dit == *"$tenu"* ]] && [ "$(md5sum ./*.* 2> /dev/null; ls)" = "$avant" ] && return
  printf 'sudoku'; printf ' %q' "$@"; printf '\n  status %s instead of %s, “%s” expected in:\n%s\n' $rendu "$statut" "$tenu" "$dit"
  ls; echec=1
}
essai 0 'Usage : sudoku' --help
essai 0 'sudoku 1.' --version
essai 2 "il manque l'image" --capture
essai 2 'jeu.sud : le nom d'"'"'une image finit par .png, .svg ou .pdf' --capture jeu.sud
essai 2 'jeu.sud : le nom' --capture jeu.sud jeu.sud
essai 2 'notes.txt : le nom' --capture notes.txt jeu.sud
essai 2 'le même fichier' --capture jeu.png jeu.sud
essai 2 'le même fichier' --capture rien.png rien.png
essai 2 'un seul fichier' --capture a.png jeu.sud jeu.sud
essai 2 'un seul fichier' jeu.sud jeu.sud
essai 2 'option inconnue : -x' -x
essai 2 'option inconnue : -\x1B[2J' $'-\e[2J'
essai 2 'option inconnue : --capture' --capture a.png --capture
essai 2 "n'est pas de l'UTF-8" --capture $'\xe9.png' jeu.sud
essai 1 '53 - Fichier introuvable' --capture a.png rien.sud
essai 1 "d.png : Erreur d'accès" --capture d.png jeu.sud
essai 1 "absent/a.png : Erreur d'accès" --capture absent/a.png jeu.sud

# No room for the image, which is larger than a buffer: what was there stays, and nothing beside it. (The limit stands
# in for a full disk.)
for image in a.png a.svg a.pdf; do
  (ulimit -f 1; essai 1 "$image : Erreur d'accès" --capture $image plein.sud; exit $echec) || echec=1
done

# A game whose name isn't UTF-8.
cp jeu.sud $'\xe9t\xe9.sud'
"$sudoku" --capture b.png $'\xe9t\xe9.sud' || dit "a name that isn't UTF-8"

# Drawn whole, in the place of what was there.
for image in 'a.png:\x89PNG' 'a.svg:<?xml' 'a.pdf:%PDF'; do
  "$sudoku" --capture "${image%:*}" jeu.sud || dit "$image: not drawn"
  [ "$(head -c 4 "${image%:*}")" = "$(printf '%b' "${image#*:}" | head -c 4)" ] || dit "$image: no such file"
done

# Symbols, and a name, that no XML holds.
printf '\xef\xbb\xbf1\e\xef\xbf\xbf4\r\n10\e0\xef\xbf\xbf0 0 0 0 0 0 0 0 0 0 0 0 0 0\r\na\x01-10\e0\xef\xbf\xbf0 0 0 0 0 0 0 0 0 0 0 0 0 0\r\n\0' > signes.sud
"$sudoku" --capture signes.svg signes.sud && xmllint --noout signes.svg || dit "signes.svg: no XML"
grep -q $'\xe2\x90\x9b' signes.svg || dit "signes.svg: without its symbol"
exit $echec

#!/bin/bash
# joue_au_clavier.sh SUDOKU DOSSIER: run by hand under avec_ecran.sh. Plays a whole game, from a new grid to its
# score, with real key events and no mouse; leaves pictures of the screen in DOSSIER, to be looked at.
set -eu
sudoku=$1 dossier=$2
cle() { xdotool key --delay 60 "$@"; sleep 0.3; }
ecrit() { xdotool type --delay 60 "$1"; sleep 0.3; }
image() { import -window root "$dossier/clavier-$1.png"; }

"$sudoku" & jeu=$!
trap 'kill $jeu 2> /dev/null || true' EXIT
xdotool search --sync --onlyvisible --name 'Solver de Sudoku' > /dev/null; sleep 1
cle alt+j g ctrl+a; ecrit 1234; cle Return
ecrit 1; cle Right Right Right; ecrit 4                # no box has the focus: the first one takes the symbol
cle Home Down; ecrit 3; cle Right Right; ecrit 1
cle ctrl+z ctrl+y
cle alt+j Escape Escape                                # the menus take the keyboard, and give it back
cle Home Down; ecrit 2; cle End; ecrit 3
cle Page_Down Home Right ctrl+space; ecrit 3           # from the palette
image 1-saisie
cle F1; image 2-touches; cle Escape
cle alt+j d ctrl+Home
for symbole in 2 3 4 2 1 4 4 2 1; do cle Tab; ecrit $symbole; done
image 3-nom; ecrit Zoe; cle Return; image 4-score; cle Return
cle alt+j q; image 5-quitter; cle o
wait $jeu

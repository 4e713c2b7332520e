#!/bin/bash
# joue_a_la_souris.sh SUDOKU DOSSIER: run by hand under avec_ecran.sh. Plays a whole game, from a new grid to its
# score, with real mouse events and no key; leaves pictures of the screen in DOSSIER, to be looked at.
set -eu
sudoku=$1 dossier=$2
image() { import -window root "$dossier/souris-$1.png"; }
# clic WINDOW X Y [BUTTON]: a click there.
clic() { xdotool mousemove --window "$1" "$2" "$3" click "${4:-1}"; sleep 0.3; }
# surgi: a menu or the palette, which lie outside the frames of windows; boite: the box in front; taille WINDOW:
# its WIDTH and HEIGHT.
surgi() { xdotool search --onlyvisible --class sudoku | head -n 1; }
boite() { xdotool search --onlyvisible --class sudoku | tail -n 1; }
taille() { eval "$(xdotool getwindowgeometry --shell "$1")"; }
# article N: the Nth entry of the menu Jeu, separators left out.
article() { clic "$fenetre" 15 10; clic "$(surgi)" 30 $((14 + 22 * ($1 - 1))); }
# valide DROITE: the button of the box whose middle is DROITE pixels from its right edge.
valide() { local ici; ici=$(boite); taille "$ici"; clic "$ici" $((WIDTH - $1)) $((HEIGHT - 22)); }

"$sudoku" & jeu=$!
trap 'kill $jeu 2> /dev/null || true' EXIT
fenetre=$(xdotool search --sync --onlyvisible --name 'Solver de Sudoku' | head -n 1); sleep 1
article 1; image 1-symboles; valide 120; image 2-grille
article 2
for ((i = 0; i < 81; ++i)); do
  ligne=$((i / 9)) colonne=$((i % 9)) k=$(((i / 9 * 3 + i / 27 + i % 9) % 9))
  clic "$fenetre" $((28 + 26 * colonne)) $((75 + 26 * ligne)) 3
  palette=$(surgi); taille "$palette"
  [ $i = 40 ] && image 3-palette
  clic "$palette" $((WIDTH / 2 + (k % 3 - 1) * 26)) $((18 + k / 3 * 26))
done
image 4-nom; valide 120; image 5-score; valide 45
clic "$fenetre" 15 10; menu=$(surgi); taille "$menu"; clic "$menu" 30 $((HEIGHT - 14))
image 6-quitter; valide 120
wait $jeu

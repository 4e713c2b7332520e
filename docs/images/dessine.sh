#!/bin/bash
# Draws the pictures of the manual by the list images.txt, with the programs $1 (sudoku-images) and $2
# (sudoku-lot). The grids of the techniques, a line each with their name, become game files first.
set -eu
images=$1
lot=$2
cd "$(dirname "$0")"
trap 'rm -f technique-*.sud' EXIT
while read -r nom grille; do
  case $nom in '' | '#'*) continue ;; esac
  echo "$grille" | "$lot" importer > "technique-$nom.sud"
done < techniques.txt
"$images" < images.txt

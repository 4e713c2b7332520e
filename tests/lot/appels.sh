#!/bin/bash
# appels.sh SUDOKU-LOT: calls, wrong ones above all. Each row: exit status, what the messages must hold, the words.
set -u
lot=$1
cd "$(mktemp -d)" || exit 1
trap 'rm -rf "$PWD"' EXIT
echo 1111111111111111 > '[a]'
cp '[a]' ++
cp '[a]' ./-x
mkdir dossier
ln -s boucle boucle
printf '\U1f642%.0s' {1..75000} > long
echec=0

essai() {
  local statut=$1 tenu=$2 dit rendu
  shift 2
  dit=$("$lot" "$@" 2>&1 < '[a]')
  rendu=$?
  [ $rendu = "$statut" ] && [[ $dit == *"$tenu"* ]] && ! [[ $dit =~ required|expected|argument|[Uu]sage ]] && return
  printf 'sudoku-lot'; printf ' %q' "$@"; printf '\n  status %s instead of %s, “%s” expected in:\n%s\n' $rendu "$statut" "$tenu" "$dit"
  echec=1
}

resolu='1111111111111111	1111111111111111	0	0	0	Résolu sans supposition'

essai 0 'resoudre' --aide
essai 0 'resoudre' resoudre --help
essai 2 'il manque la commande'
essai 2 'commande inconnue : résoudre' résoudre
essai 2 'commande inconnue : \x1B[2J\x9D' $'\e[2J\xc2\x9d'
essai 1 '\x07rien: fichier introuvable' resoudre $'\arien'
essai 2 'option inconnue : --passes' resoudre --passes 1
essai 2 'option inconnue : --deduction' expliquer --deduction
essai 2 'option inconnue : -x' resoudre -x
essai 2 'option inconnue : --symbole' resoudre --symbole 1234
essai 2 'attend une valeur' resoudre --symboles
essai 2 'pas un nombre de 1 à 2' expliquer --passes 3
essai 2 'pas un nombre de 1 à 2' expliquer --passes 1x
essai 2 'pas un nombre de 1 à 2' expliquer --passes ''
essai 2 'pas un nombre de 0 à' resoudre --processus -1
essai 2 'pas un nombre de 0 à' resoudre --processus 99999999999
essai 2 'options incorrectes' resoudre --deduction=peut-être
essai 2 'options incorrectes' expliquer --texte=1
essai 2 'option inconnue : -xyz' resoudre -xyz
essai 2 'Choix incorrect : 0 symbole(s)' resoudre --symboles= 1234
essai 2 "« xml » n'est ni texte" demontrer --format xml
essai 2 'option inconnue : --deduction' demontrer --deduction
essai 2 'option inconnue : --supposer' resoudre --supposer
essai 0 'Grille 1 : 1111111111111111' demontrer --symboles 1234
essai 1 'rien: fichier introuvable' demontrer --format html --symboles 1234 rien
essai 2 'un seul fichier' importer a b
essai 2 'option inconnue : --symboles' exporter --symboles 1234 f.sud
essai 2 'Choix incorrect' resoudre --symboles $'\xff234'
essai 2 'Choix incorrect' resoudre --symboles "$(printf '%0196d' 0)"
essai 2 'Choix incorrect : une fin de ligne' importer --symboles $'12\n4'
# The word behind --symboles is the symbols, whatever it is.
essai 2 'Choix incorrect : 2 symbole(s)' resoudre --symboles --
essai 2 'Choix incorrect : 6 symbole(s)' resoudre --symboles --aide
essai 1 'un des symboles « --xy »' resoudre --symboles --xy
essai 1 'un des symboles « [ab] »' resoudre --symboles '[ab]'
# Files.
essai 0 "$resolu" resoudre --symboles 1234
essai 0 "$resolu" resoudre --symboles 1234 -
essai 0 "$resolu" resoudre '[a]' --symboles 1234
essai 0 "$resolu" resoudre --symboles 1234 ++
essai 0 "$resolu" resoudre --symboles 1234 -- -x
essai 0 "$resolu" resoudre --symboles 1123 --symboles 1234
essai 1 'rien: fichier introuvable' resoudre --symboles 1234 rien ++
essai 1 "$resolu" resoudre --symboles 1234 rien ++
essai 1 "dossier: c'est un dossier" resoudre dossier
essai 1 'boucle: trop de liens' exporter boucle
essai 1 'long:1: plus de 57122 caractère(s)' resoudre --symboles "$(printf '%0169d' 0)" long
essai 1 '++/x: un des dossiers du chemin est un fichier' resoudre ++/x
essai 1 '++:1: 16 caractère(s) ; il en faut 81' resoudre --processus 0 ++
exit $echec

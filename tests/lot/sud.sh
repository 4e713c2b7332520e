#!/bin/bash
# sud.sh SUDOKU-LOT SUDOKU-SCENARIO: game files made of text, and text made of game files.
set -u
lot=$1 scenario=$2
cd "$(mktemp -d)" || exit 1
trap 'rm -rf "$PWD"' EXIT
echec=0
dit() { echo "$*"; echec=1; }

# importe LINE SYMBOLS TEXT: the text, imported and exported again, is the line.
importe() {
  local rendu
  rendu=$(printf '%b' "$3" | "$lot" importer --symboles "$2" > f.sud && "$lot" exporter f.sud)
  [ "$rendu" = "$1" ] || dit "“$3” comes back as “$rendu”, not “$1”"
}

ligne=1..4..2..3..4..1
importe $ligne 1234 '1..4..2..3..4..1'
importe $ligne 1234 '1004002003004001\r\n'
importe $ligne 1234 '1  4\n  2 \n 3  \n4  1\n'
importe $ligne 1234 '+---+---+\n|1 .|_ 4|\n|* 0|2 .|\n+---+---+\n|. 3|. .|\n|4 .|. 1|\n+---+---+\n'
importe $ligne 1234 '# commentaire\n1..4\n..2.\n.3..\n4..1'
importe $ligne 1234 '\xef\xbb\xbf1..4\n..2.\n.3..\n4..1'
importe $ligne 1234 '+--+--+\n|1 | 4|\n|  |2 |\n+--+--+\n| 3|  |\n|4 | 1|\n+--+--+'
importe $ligne 1234 '1 . | . 4\r\n. . | 2 .\r\n----+----\r\n. 3 | . .\r\n4 . | . 1\r\n'
importe $ligne 1234 '1..4\n..2.\n   \n.3..\n4..1'
importe $ligne 1234 '\n1..4\n\n..2.\n.3..\n4..1\n\n'
importe '0010-0.0 0 0 0 00010-0.00010-0.0' '01-.' '01-._*  01-.01-.'
importe 'a..D..B..c..d..a' abCD 'a..D ..B. .c.. d..a'
importe 'é..0..-..+..0..é' 'é-+0' 'é..0\n..-.\n.+..\n0..é'
importe $'.0 0 040 0 020 0 030 0 040 0 0.0' '.234' '.0 0 040 0 020 0 030 0 040 0 0.0'

# A library goes both ways, and a name that isn't fit for a line stays on it.
printf '1234\r\n10 0 0 0 0 020 0 030 0 0 0 0 040\r\nEssai-1012 0 0 0 020 0 030 0 0 0 0 040\r\nun\x1fdeux\ttrois-1032 0 0 0 020 0 030 0 0 0 0 040\r\n\0' > biblio.sud
attendu=$'1.....2..3.....4\n1012 0 0 0 020 0 030 0 0 0 0 040\tEssai\n1032 0 0 0 020 0 030 0 0 0 0 040\tun-deux\ttrois'
rendu=$("$lot" exporter biblio.sud)
[ "$rendu" = "$attendu" ] || dit "the library comes out as “$rendu”"
"$lot" exporter biblio.sud | "$lot" importer --symboles 1234 > encore.sud
"$lot" exporter encore.sud | cmp - <(echo "$attendu") || echec=1
printf '1..4..2..3..4..1\n1012 0 0 0 020 0 030 0 0 0 0 040\t\0a\n' | "$lot" importer --symboles 1234 > encore.sud
[ "$("$lot" exporter encore.sud | tail -n 1)" = $'1012 0 0 0 020 0 030 0 0 0 0 040\t a' ] || dit "a NUL takes a game with it"
"$lot" exporter biblio.sud | "$lot" expliquer --symboles 1234 > /dev/null || dit "a line is no grid for expliquer"

# What a terminal would obey stays as it is in a file, and is shown on a terminal; in messages it is always shown.
printf '1\e23\r\n\e0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0\r\n\e]0;a\x07\x9d-101\r\nb\x9dc-\e0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0\r\n\0' > $'\ef'
attendu=$'\e...............\n\e0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0\tb\xc2\x9dc'
message='\x1Bf: la partie « \x1B]0;a\x07\x9D » est plus courte que la grille'
"$lot" exporter $'\ef' 2> dit | cmp - <(echo "$attendu") || dit "in a file another library"
[ "$(cat dit)" = "$message" ] || dit "the message is $(cat -v dit)"
rendu=$(script -qec "'$lot' exporter ?f 2> /dev/null" /dev/null < /dev/null | tr -d '\r')
attendu=${attendu//$'\e'/'\x1B'}
[ "$rendu" = "${attendu/$'\xc2\x9d'/'\x9D'}" ] || dit "a terminal is sent $(cat -v <<< "$rendu")"

# The game opens what is imported, and exports what it saves.
printf '1..4\n..2.\n.3..\n4..1\n' | "$lot" importer --symboles 1234 > jeu.sud
rendu=$(printf 'start "\\"jeu.sud\\""\nshow grid\ntype 2 "2"\nclick MnuSave\nedit LstSave "ici"\nclick BtOK\n' | "$scenario" | grep '^[1-4.]*$' | tr '\n' ' ')
[ "$rendu" = "1..4 ..2. .3.. 4..1 " ] || dit "the game shows “$rendu”"
rendu=$("$lot" exporter jeu.sud)
[[ $rendu == "$ligne"$'\n'"1021"*$'\t'"ici" ]] || dit "the saved game comes out as “$rendu”"

# The last game that has a number, and the one behind it.
grille='10 0 0 0 0 020 0 030 0 0 0 0 040'
{ printf '1234\n%s\n' "$grille"; yes "p-$grille" | head -n 40000; printf '\0'; } > mille.sud
for cas in '32767 VmPartie=32767' '32768 message "FRMParties.Valide : 9 VmPartie=0'; do
  rendu=$(printf 'start "\\"mille.sud\\""\nselect LstLoad %s\nclick BtOK\nshow state\n' "${cas%% *}" | "$scenario" |
    grep -oE '^message "[^:]*: 9|VmPartie=[0-9]*' | paste -sd' ')
  [ "$rendu" = "${cas#* }" ] || dit "of game ${cas%% *}: $rendu"
done

"$scenario" /proc/self/mem > sortie 2>&1 && dit "a session that can't be read ends well"
grep -q '^/proc/self/mem : ' sortie || dit "“$(cat sortie)” for a session that can't be read"

# refuse TEXT SYMBOLS MESSAGE: importing says so and writes nothing.
refuse() {
  local rendu
  rendu=$(printf '%b' "$1" | "$lot" importer --symboles "$2" 2>&1 > f.sud)
  [ "$?" = 1 ] && [[ $rendu == "-: "*"$3"* ]] && ! [ -s f.sud ] || dit "“$1”: “$rendu”"
}
refuse '1..4\n..2.\n.3..\n4..' 1234 '16 cases sur une ligne ou 4 lignes de 4'
refuse '1..4\n..2.\n.3..\n4..5' 1234 "ce n'est pas une grille"
refuse '1..4\n..2.\n.3..\n4..1\n1..4' 1234 "ce n'est pas une grille"
refuse '1..4..2..3..4..' 1234 "ce n'est pas une grille"
refuse '1..4..2..3..4..11' 1234 "ce n'est pas une grille"
refuse '1..4..2.\n.3..4..1' 1234 "ce n'est pas une grille"
refuse '1..4\n..2.\n.3..' 1234 "ce n'est pas une grille"
refuse '' 1234 "ce n'est pas une grille"
refuse '\xff' 1 "ce n'est pas une grille"
truncate -s 160M gros
[ "$("$lot" importer gros 2>&1)" = "gros: trop grand pour une partie" ] || dit "160 MB are taken"
yes '10	' | head -n 1000001 > gros
[ "$("$lot" importer --symboles 1 gros 2>&1 > sortie)" = "gros: trop grand pour une partie" ] || dit "more games than can be read"
# A line of 60 MB within 400; and without the memory that it takes. (A sanitizer takes more than any limit.)
if ! grep -qa __asan_init "$lot"; then
  head -c 60000000 /dev/zero | tr '\0' 1 > gros
  rendu=$(ulimit -v 400000; "$lot" importer gros 2>&1)
  [[ $rendu == "gros: ce n'est pas une grille"* ]] || dit "a long line: “$rendu”"
  rendu=$(ulimit -v 100000; "$lot" importer gros 2>&1)
  [ "$?" = 1 ] && [ "$rendu" = "sudoku-lot : mémoire insuffisante" ] || dit "without memory: “$rendu”"
  (printf '1234\r\n10 0 0 0 0 0 0 0 0 0 0 0 0 0 020\r\nx-'; cat gros) > gros.sud
  rendu=$(printf 'start "\\"biblio.sud\\""\nclick BtOK\nclick MnuLoad\nanswer oui\nanswer "gros.sud"\nanswer ok\nshow grid\nshow state\n' | (ulimit -v 200000; "$scenario") | tr '\n' ' ')
  [[ $rendu == *'message "FRMSudoku.JeuLoad : 75 - '*' 1... ..2. .3.. ...4 '*'VgEtat=2 '*'VmValeurs="1234"'* ]] || dit "a load without memory: “$rendu”"
fi

# exporte STATUS MESSAGE BYTES
exporte() {
  local rendu statut
  printf '%b' "$3" > f.sud
  rendu=$("$lot" exporter f.sud 2>&1 > sortie)
  statut=$?
  [ $statut = "$1" ] && [ "$rendu" = "$2" ] || dit "“$3”: $statut “$rendu”"
}
exporte 1 "f.sud: L'entrée dépasse la fin de fichier" '1234'
exporte 1 'f.sud: Choix incorrect pour les symboles de la grille' '12345\r\n10'
exporte 1 "f.sud: la grille est plus courte que ses symboles ne le demandent" '1234\r\n10 0'
exporte 1 "f.sud: la partie « court » est plus courte que la grille" '1\r\n10\r\ncourt-1\r\nbon-10'
[ "$(cat sortie)" = $'1\n10\tbon' ] || dit "what is good is exported all the same"
exit $echec

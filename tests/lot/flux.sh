#!/bin/bash
# flux.sh SUDOKU-LOT: results come while the run goes on, in the order of the lines, from lines of any length.
set -u
lot=$1
dossier=$(mktemp -d) || exit 1
trap 'rm -rf "$dossier"' EXIT
grille=12..34..........
dit() { echo "$*"; echec=1; }
echec=0

# An answer to each line before the next one is sent: a run that holds it back never ends.
for processus in 1 3; do
  coproc LOT { "$lot" resoudre --symboles 1234 --processus $processus; }
  pid=$LOT_PID
  for tour in 1 2 3; do
    echo $grille >&"${LOT[1]}"
    IFS= read -r ligne <&"${LOT[0]}"
    [[ $ligne == "$grille	"*"	Résolu"* ]] || dit "--processus $processus answers “$ligne”"
  done
  # Nor does the beginning of the next line, written together with it, hold it back.
  env printf '%s\n#%01000d' $grille 0 >&"${LOT[1]}"
  IFS= read -r ligne <&"${LOT[0]}"
  [[ $ligne == "$grille	"* ]] || dit "--processus $processus answers “$ligne” before the next line"
  eval "exec ${LOT[1]}>&-"
  wait "$pid" || dit "--processus $processus: status $?"
done

# More lines than are under way at once, easy, hard and bad ones.
for i in {1..3000}; do
  case $((i % 7)) in 0) echo "$i" ;; 1) echo '1234341221434321' ;; *) echo "................	$i" ;; esac
done > "$dossier/lignes"
for processus in 1 2 5; do
  "$lot" resoudre --symboles 1234 --processus $processus "$dossier/lignes" "$dossier/rien" \
    "$dossier/lignes" > "$dossier/$processus" 2> "$dossier/$processus.err"
  [ $? = 1 ] || dit "--processus $processus: status"
  cmp "$dossier/1" "$dossier/$processus" && cmp "$dossier/1.err" "$dossier/$processus.err" || echec=1
done
[ "$(wc -l < "$dossier/1") $(wc -l < "$dossier/1.err")" = "5144 857" ] || dit "6000 lines, 856 of them bad, and a file that isn't there"

# A last line without an end, longer than all before it.
ligne=$(printf '#\n%s' $grille | "$lot" resoudre --symboles 1234)
[[ $ligne == "$grille	"* ]] || dit "a last line without an end: “$ligne”"

# Shared out by GNU parallel, the lines give what one process gives.
parallel --will-cite --pipe --keep-order --jobs 2 --block 5000 "$lot" resoudre --symboles 1234 < "$dossier/lignes" \
  > "$dossier/partages" 2> "$dossier/partages.err"
"$lot" resoudre --symboles 1234 < "$dossier/lignes" 2> "$dossier/seul.err" | cmp - "$dossier/partages" || echec=1
[ "$(cut -d: -f3- "$dossier/partages.err")" = "$(cut -d: -f3- "$dossier/seul.err")" ] || dit "parallel: other messages"

# Lines far longer than any grid.
longue() { head -c 40000000 /dev/zero | tr '\0' "$1"; }
{ printf '%s\t' $grille; longue x; echo; longue 1; echo; echo $grille; printf '#'; longue 2; } \
  | "$lot" resoudre --symboles 1234 > "$dossier/longues" 2> "$dossier/longues.err"
[ $? = 1 ] || dit "long lines: status"
[ "$(cut -f1 "$dossier/longues")" = "$grille"$'\n'"$grille" ] || dit "long lines: $(head -c 300 "$dossier/longues")"
[[ $(cat "$dossier/longues.err") == "-:2: plus de 32 caractère(s) ; il en faut 16,"* ]] || dit "$(head -c 300 "$dossier/longues.err")"

# A reader that goes away ends the run without a word, whether or not the signal of it is ignored.
for signal in defaut ignore; do
  (
    : > "$dossier/rompu"
    [ $signal = ignore ] && trap '' PIPE
    for commande in resoudre "demontrer --format html"; do
      yes $grille 2> /dev/null | "$lot" $commande --symboles 1234 2>> "$dossier/rompu" | head -n 1 > /dev/null
    done
  )
  [ -s "$dossier/rompu" ] && dit "closed pipe, signal $signal: $(cat "$dossier/rompu")"
done

if [ -e /dev/full ]; then
  for appel in 'resoudre --symboles 1234' --aide; do
    dit=$(echo $grille | "$lot" $appel 2>&1 > /dev/full)
    [ "$?:$dit" = "1:sortie standard: plus de place sur le disque" ] || dit "full disk, $appel: “$dit”"
  done
fi
exit $echec

#!/bin/bash
# page.sh SUDOKU-LOT EXEMPLES: pages of roads are well-formed, their links lead somewhere and their ids are unique, with
# symbols that a page can't hold as they are, entries, bad lines and no line at all.
set -u
lot=$1 exemples=$2
dossier=$(mktemp -d) || exit 1
trap 'rm -rf "$dossier"' EXIT
page=$dossier/page.html
echec=0
dit() { echo "$*"; echec=1; }

# essai HOLDS WORD…: the page of the call with these words on standard input.
essai() {
  local tenu=$1
  shift
  "$lot" demontrer --format html "$@" > "$page" 2> "$dossier/err"
  xmllint --noout "$page" || dit "not well-formed: $*"
  grep -q -- "$tenu" "$page" || dit "no $tenu: $*"
  ids=$(grep -o ' id="[^"]*"' "$page" | cut -d'"' -f2 | sort)
  [ "$ids" = "$(sort -u <<< "$ids")" ] || dit "ids twice: $*"
  comm -13 <(echo "$ids") <(grep -o 'href="#[^"]*"' "$page" | cut -d'#' -f2 | tr -d '"' | sort -u) | grep . && dit "dead links: $*"
}

essai '<b>&lt;</b> dans la' --supposer --symboles '<&">' <<< '."&..<..........'
essai '<b>␁</b> dans la' --supposer --symboles $'\x01\x7f\uFFFFx' <<< ....x...........
essai 'est réfuté' --supposer < "${0%/*}/demontrer-9-supposer.in"
essai 'class="p"' --supposer --symboles 1234 < "${0%/*}/demontrer-4-supposer.in"
essai 'id="g2-fin"' --symboles 1234 --processus 3 < <(printf '%s\n' 12..34.......... non 1234............)
[[ $(cat "$dossier/err") == '-:2: 3 caractère(s)'* ]] || dit "message: $(cat "$dossier/err")"
essai '</html>' < /dev/null
essai 'supposons' --supposer < <(tail -n 1 "$exemples/grilles-9.txt")
cmp "$page" "$exemples/chemin.html" || dit "the example isn't what the program makes"
# A player's game.
essai 'id="g4-fin"' --supposer < <("$lot" exporter "$exemples/bibliotheque.sud")
exit $echec

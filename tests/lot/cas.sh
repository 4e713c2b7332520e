#!/bin/bash
# cas.sh SUDOKU-LOT NAME: makes the call that cas.txt gives for NAME and compares to the byte with what is recorded.
set -u
lot=$1
read -r _ fichiers appel < <(grep "^$2 " "$(dirname "$0")/cas.txt")
cas=$(dirname "$0")/$fichiers
sorties=$(mktemp -d) || exit 1
trap 'rm -rf "$sorties"' EXIT

eval "set -- $appel"
"$lot" "$@" < "$cas.in" > "$sorties/out" 2> "$sorties/err"
statut=$?

echec=0
attendu=0
[ -f "$cas.statut" ] && attendu=$(cat "$cas.statut")
[ "$statut" = "$attendu" ] || { echo "exit status $statut instead of $attendu"; echec=1; }
erreurs=/dev/null
[ -f "$cas.err" ] && erreurs=$cas.err
diff -a "$erreurs" "$sorties/err" || echec=1
cmp "$cas.out" "$sorties/out" || { diff -a "$cas.out" "$sorties/out" | cut -c1-2000 | head -20; echec=1; }
exit $echec

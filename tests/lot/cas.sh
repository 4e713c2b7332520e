#!/bin/bash
# cas.sh SUDOKU-LOT CASE [WORD…]: runs the call of CASE.args, with the words behind it, on CASE.in, and compares to
# the byte with CASE.out, CASE.err (nothing) and CASE.statut (0).
set -u
lot=$1 cas=$2
shift 2
sorties=$(mktemp -d) || exit 1
trap 'rm -rf "$sorties"' EXIT

eval "set -- $(cat "$cas.args") $*"
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

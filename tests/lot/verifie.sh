#!/bin/bash
# verifie.sh GRILLES-ALEA SUDOKU-LOT [COUNT [SEED]]: no deduction on random grids of sides 4, 9 and 16, with and without
# unproved entries, contradicts a solution. Prints how many grids had no, one, several solutions, and what was checked.
set -eu
alea=$1 lot=$2 nombre=${3:-200} graine=${4:-1}
symboles=123456789ABCDEFG
for entrees in "" dixieme; do
  for cote in 4 9 16; do
    # Statuses of both ends count: a contradiction is 3.
    set -o pipefail
    "$alea" $cote "$nombre" "$graine" $entrees | "$lot" verifier --symboles ${symboles:0:$cote} |
      awk -F'\t' -v c="$cote $entrees" '
        { n[$2]++; evaluations += $3; retraits += $4; contradictions += $5 }
        END { print c ":", n[0] + 0, n[1] + 0, n[2] + 0, "solutions,", evaluations, "evaluations,", retraits, "retraits,",
                    contradictions, "contradictions"
              exit !(n[0] && n[1] && n[2] && (retraits || c + 0 == 4) && !contradictions) }'
  done
done

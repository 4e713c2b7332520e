#!/bin/bash
# rejoue.sh SUDOKU-LOT SYMBOLS [FILE…]: the roads of these grids, with and without suppositions, hold against what
# resoudre makes of them. Steps and grids are numbered without a gap; suppositions open the level they name;
# replaying the steps of level 0 and of the levels left open gives the result, unless the last level was closed;
# fields 2 to 6 are those of resoudre; three processes give the same bytes. ASCII symbols.
set -eu -o pipefail
lot=$1 symboles=$2
shift 2
dossier=$(mktemp -d)
trap 'rm -rf "$dossier"' EXIT
cat "$@" > "$dossier/grilles"

for option in "" --supposer; do
  demontre=("$lot" demontrer --symboles "$symboles" --format json $option)
  [ -n "$option" ] && deduction= || deduction=--deduction
  "$lot" resoudre --symboles "$symboles" $deduction < "$dossier/grilles" > "$dossier/resolu"
  "${demontre[@]}" < "$dossier/grilles" > "$dossier/chemin"
  "${demontre[@]}" --processus 3 < "$dossier/grilles" | cmp - "$dossier/chemin"
  awk -F'\t' -v S="$symboles" -v option="$option" '
    function faux(quoi) { print FILENAME ":" FNR ": " quoi ": " substr($0, 1, 300); echec = 1; exit 1 }
    function nombre(cle) { return match($0, "\"" cle "\":-?[0-9]+") ? substr($0, RSTART + length(cle) + 3, RLENGTH - length(cle) - 3) + 0 : -9 }
    function texte(cle) { return match($0, "\"" cle "\":\"[^\"]*\"") ? substr($0, RSTART + length(cle) + 4, RLENGTH - length(cle) - 5) : "?" }
    function ouvre(champ, i, c, pas) {
      delete pose; niveau = etape = sup = ref = 0
      pas = length(champ) / M
      for (i = 1; i <= M; ++i) {
        c = substr(champ, (i - 1) * pas + 1, 1)
        donnee[i] = index(S, c) || index(toupper(S), toupper(c)) ? c : "."
      }
    }
    BEGIN { M = length(S) ^ 2 }
    FILENAME ~ /resolu$/ { for (i = 1; i <= 6; ++i) resolu[FNR, i] = $i; grilles = FNR; next }
    FNR == 1 { g = 1; ouvre(resolu[1, 1]) }
    nombre("grille") != g { faux("grid") }
    /"fin"/ {
      grille = ""
      for (i = 1; i <= M; ++i) {
        c = donnee[i]
        for (n = 0; n <= niveau; ++n) if ((n, i) in pose) c = pose[n, i]
        grille = grille c
      }
      rendu = texte("resultat") "\t" nombre("suppositions") "\t" nombre("refutations") "\t" nombre("retours") "\t" texte("fin")
      attendu = resolu[g, 2]; for (i = 3; i <= 6; ++i) attendu = attendu "\t" resolu[g, i]
      if (rendu != attendu) faux("resoudre gives " attendu)
      insoluble = sup > 0 && niveau == 0
      if (!insoluble && grille != resolu[g, 2]) faux("replayed " grille)
      if (!insoluble && (sup != nombre("suppositions") || ref != nombre("refutations"))) faux("steps of suppositions")
      ouvre(resolu[++g, 1]); next
    }
    { ++total; if (nombre("etape") != ++etape) faux("step") ; n = nombre("niveau") }
    /"refutation"/ { ++ref; if (n != niveau) faux("level"); for (k in pose) if (k + 0 == n) delete pose[k]; niveau = n - 1; refutee = n; next }
    /"supposition"/ { ++sup; if (n != niveau + 1) faux("level"); niveau = n; pose[n, nombre("index")] = texte("valeur"); next }
    n != niveau || !/"cases":\[\{/ { faux("level or cells") }
    {
      reste = $0
      while (match(reste, /"index":[0-9]+,"valeur":"[^"]*"/)) {
        split(substr(reste, RSTART, RLENGTH), mots, /[:,"]+/)
        pose[n, mots[3]] = mots[5]
        reste = substr(reste, RSTART + RLENGTH)
      }
    }
    END { if (!echec && g != grilles + 1) { print "grids: " g - 1; exit 1 }
          if (!echec) print grilles " grilles, " total " étapes " option }' "$dossier/resolu" "$dossier/chemin"
done

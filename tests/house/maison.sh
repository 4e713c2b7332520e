#!/bin/bash
# maison.sh ROOT: files of src include what the table of ARCHITECTURE.md lets their folder include, and no file of code is
# long.
set -u
cd "$1" || exit 1
echec=0

declare -A fleches # by folder, those it may include besides itself
while IFS='|' read -r _ dossier _ permis _; do
  fleches[${dossier//[ \`]/}]=${permis//[,–]/}
done < <(grep '^| `src/' ARCHITECTURE.md)

# An arrow takes with it all that the other folder may include.
atteint() {
  echo "$1"
  for suivant in ${fleches[src/$1]}; do atteint "$suivant"; done
}
for dossier in src/*/; do
  dossier=${dossier%/}
  [ -v "fleches[$dossier]" ] || { echo "$dossier: not in the table"; echec=1; continue; }
  permis=$(atteint "${dossier#src/}" | sort -u | paste -sd'|')
  grep -rnE '^\s*#\s*include\s*"' "$dossier" | grep -vE "include\s*\"($permis)/" && echec=1
done

find src tests bench fuzz -name '*.h' -o -name '*.inc' -o -name '*.cpp' | xargs wc -l |
  awk '$2 != "total" && $1 > ($2 ~ /main\.cpp$/ ? 60 : 600) { print "too long:", $0; long = 1 } END { exit long }' || echec=1
exit $echec

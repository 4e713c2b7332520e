#!/bin/bash
# Opens every game file of the folder $2 with the program of sessions $1, the last game of its library where it
# has one, and has it solved.
set -eu
scenario=$1
cd "$2"
for fichier in *.sud; do
  {
    echo "start \"\\\"$fichier\\\"\""
    printf 'select LstLoad 3\nclick BtOK\nclick MnuSolveur2\nanswer oui\n'
    printf 'answer ok\n%.0s' {1..100}
    echo 'show state'
  } | "$scenario" | grep -q "^VgEtat=2 .* VmNom=\"$fichier\" .* VsResolu=1\$" || { echo "$fichier" >&2; exit 1; }
done

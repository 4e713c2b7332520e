#!/bin/bash
# readme.sh README PROGRAMS: runs every command that the text shows behind "$", from its folder, with the programs of
# that folder, and compares what it prints with the lines below it, to the next blank one.
set -u
readme=$1 programmes=$2
cd "$(dirname "$readme")" || exit 1
echec=0
commandes=0

verifie() {
  [ -n "$commande" ] || return
  commandes=$((commandes + 1))
  diff <(echo "$attendu") <(bash -c "$commande") && return
  echo "of: $commande"
  echec=1
}

commande= attendu=
while IFS= read -r ligne || [ -n "$ligne" ]; do
  if [[ $ligne == '    $ '* ]]; then
    verifie
    commande=${ligne#'    $ '} attendu=
    commande=${commande//build\/release\/bin/"$programmes"}
  elif [[ $ligne == '    '* ]]; then
    attendu+=${attendu:+$'\n'}${ligne#    }
  else
    verifie
    commande=
  fi
done < "$readme"
verifie
[ $commandes -gt 0 ] || { echo "no command in $readme"; exit 1; }
exit $echec

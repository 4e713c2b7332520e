#!/bin/sh
# toutes.sh JOUE PROGRAM SESSION…: plays every session with `joue`; fails if one fails, and says which.
joue=$1
programme=$2
shift 2
statut=0
for session in "$@"; do
  "$joue" "$programme" "$session" || { echo "*** $session"; statut=1; }
done
exit $statut

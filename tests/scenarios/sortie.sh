#!/bin/sh
# sortie.sh PROGRAM: what a session prints is written, or it is told that it isn't.
set -u
programme=$1
[ -e /dev/full ] || exit 77
for appel in '' --help; do
  dit=$(echo start | "$programme" $appel 2>&1 > /dev/full)
  [ "$?:$dit" = "1:sudoku-scenario : la sortie n'a pas pu être écrite" ] || { echo "full disk, $appel: $dit"; exit 1; }
done

#!/bin/sh
# avec_ecran.sh COMMAND…: runs the command on a display of its own, with a small window manager. Exit status 77
# where the machine has neither.
set -eu
for outil in Xvfb openbox xprop; do
  command -v $outil >/dev/null || { echo "$outil manque : rien n'est essayé"; exit 77; }
done
dossier=$(mktemp -d)
export XDG_RUNTIME_DIR="$dossier"
chmod 700 "$dossier"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$dossier/numero" >"$dossier/xvfb" 2>&1 &
ecran=$!
gestionnaire=
trap 'kill $gestionnaire $ecran 2>/dev/null; wait; rm -rf "$dossier"' EXIT
while [ ! -s "$dossier/numero" ]; do kill -0 $ecran; sleep 0.05; done
DISPLAY=:$(cat "$dossier/numero")
export DISPLAY
unset WAYLAND_DISPLAY
export DBUS_SESSION_BUS_ADDRESS=disabled: DBUS_SYSTEM_BUS_ADDRESS=disabled: NO_AT_BRIDGE=1
openbox >"$dossier/openbox" 2>&1 &
gestionnaire=$!
while ! xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do kill -0 $gestionnaire; sleep 0.05; done
QT_QPA_PLATFORM=xcb "$@"

#!/usr/bin/python3
"""lecture.py SUDOKU FICHIER: what a screen reader is told, over the real accessibility bus. Plays three entries
and prints the tree of the windows before and after them; fails where a promise is broken. By hand:

  tests/qt/avec_ecran.sh dbus-run-session -- tests/qt/lecture.py build/dev/bin/sudoku exemples/facile.sud

Takes python3-gi, gir1.2-atspi-2.0, at-spi2-core and xdotool."""

import os
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

MONTRES = 8
ETATS = ["FOCUSED", "FOCUSABLE", "EDITABLE", "READ_ONLY"]
PATIENCE = 30


def attends(condition, quoi):
    fin = time.monotonic() + PATIENCE
    while not (trouve := condition()):
        if time.monotonic() > fin:
            sys.exit(f"attendu en vain : {quoi}")
        # What is known of an object changes only with the announcements that come here.
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.05)
    return trouve


def enfants(objet):
    return [objet.get_child_at_index(n) for n in range(objet.get_child_count())]


def application():
    return next((a for a in enfants(Atspi.get_desktop(0)) if a and a.get_name() == "sudoku"), None)


def cherche(objet, role, nom):
    if objet.get_role_name() == role and objet.get_name().startswith(nom):
        return objet
    return next((t for e in enfants(objet) if (t := cherche(e, role, nom))), None)


def texte(objet):
    return Atspi.Text.get_text(objet, 0, -1) if "Text" in objet.get_interfaces() else None


def etats(objet):
    return [e.lower() for e in ETATS if objet.get_state_set().contains(getattr(Atspi.StateType, e))]


def montre(objet, retrait=0):
    contenu = texte(objet)
    print("  " * retrait + f'{objet.get_role_name()} "{objet.get_name()}"',
          "" if contenu is None else f"«{contenu}»", " ".join(etats(objet)))
    suite = enfants(objet)
    for n, enfant in enumerate(suite):
        if n < MONTRES or len(suite) - n < 4 or len(suite) < 20:
            montre(enfant, retrait + 1)
    return objet


def touche(*noms):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *noms], check=True)


def joue(sudoku, fichier):
    jeu = subprocess.Popen([sudoku, fichier])
    try:
        a = attends(application, "le programme")
        fenetre = attends(lambda: cherche(a, "frame", "Solver de Sudoku"), "une fenêtre de rôle frame")
        plateau = attends(lambda: cherche(fenetre, "panel", "Plateau"), "le plateau nommé")
        montre(fenetre)
        for symbole in "347":
            vide = next(c for c in enfants(plateau) if c.get_name().startswith("vide, case"))
            case = vide.get_name().removeprefix("vide")
            touche("Tab", symbole)
            attends(lambda: vide.get_name() == symbole + case and texte(vide) == symbole, symbole + case)
            attends(lambda: enfants(plateau)[-1].get_name() == symbole + case, "l'éditeur nommé comme sa case")
        montre(fenetre)
    finally:
        jeu.kill()
        jeu.wait()


for evenement in ["object:property-change:accessible-name", "object:text-changed", "object:children-changed"]:
    Atspi.EventListener.new(lambda _: None).register(evenement)
os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
bus = subprocess.Popen(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1"])
try:
    joue(*sys.argv[1:])
finally:
    bus.terminate()

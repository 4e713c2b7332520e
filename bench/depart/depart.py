#!/usr/bin/env python3
"""depart.py PREMIERE_IMAGE.so REFERENCE PROGRAM [ARGUMENT…]: the time from launch to the first painted window,
of a program and of the reference, started in turn, and the ratio of the two; wall clock and processor time."""

import os
import statistics
import subprocess
import sys
import time

TOURS = 101


def mesure(commande, environnement):
    debut = time.perf_counter()
    processus = subprocess.Popen(commande, env=environnement, stderr=subprocess.DEVNULL)
    _, statut, usage = os.wait4(processus.pid, 0)
    if statut != 0:
        sys.exit(f"{commande[0]} : statut {statut}")
    return 1000 * (time.perf_counter() - debut), 1000 * (usage.ru_utime + usage.ru_stime)


environnement = dict(os.environ, LD_PRELOAD=sys.argv[1])
commandes = [[sys.argv[2]], sys.argv[3:]]
durees = [[mesure(c, environnement) for c in commandes] for _ in range(TOURS)]
for n, nom in enumerate(["horloge", "processeur"]):
    vide, jeu = (statistics.median(tour[k][n] for tour in durees) for k in (0, 1))
    print(f"{nom} : fenêtre vide {vide:.1f} ms, jeu {jeu:.1f} ms, rapport {jeu / vide:.2f}")

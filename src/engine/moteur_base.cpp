#define SUDOKU_MOTEUR moteur_base
#include "engine/moteur.inc"

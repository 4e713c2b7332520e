#define SUDOKU_MOTEUR moteur_avx2
#include "engine/moteur.inc"

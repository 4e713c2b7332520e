#define SUDOKU_MOTEUR moteur_avx512
#include "engine/moteur.inc"

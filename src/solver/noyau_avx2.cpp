#define SUDOKU_MOTEUR noyau_avx2
#include "solver/noyau_passe.inc"

#define SUDOKU_MOTEUR noyau_avx512
#include "solver/noyau9_passe.inc"

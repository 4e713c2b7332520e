#define SUDOKU_MOTEUR noyau_avx512
#include "solver/noyau_passe.inc"

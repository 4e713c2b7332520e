#define SUDOKU_NOYAU noyau_avx2
#include "solver/noyau9_passe.inc"

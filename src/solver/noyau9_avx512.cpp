#define SUDOKU_NOYAU noyau_avx512
#include "solver/noyau9_passe.inc"

#define SUDOKU_NOYAU noyau_base
#include "solver/noyau9_passe.inc"

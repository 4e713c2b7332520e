#define SUDOKU_MOTEUR noyau_base
#include "solver/noyau9_passe.inc"

#define SUDOKU_MOTEUR noyau_base
#include "solver/noyau_passe.inc"

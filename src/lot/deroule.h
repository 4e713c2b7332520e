#pragma once

#include "lot/appel.h"
#include "lot/equipe.h"

namespace sudoku::lot {

// Runs over all lines of all files of the call: one worker, or a team of appel.processus, whose answers come
// out in the order of the lines. Bad lines and unreadable files are reported on standard error and passed
// over. Result: the exit status, 0 or, if there were any, 1.
int Deroule(const Appel& appel, const Atelier& atelier);

// The same with the good lines counted (Reponse::rang), and with what stands before and behind all answers.
int DeroulePage(const Appel& appel, const Atelier& atelier, std::string_view avant, std::string_view apres);

}  // namespace sudoku::lot

#pragma once

#include <QIcon>

namespace sudoku {

// The program's icon, in every size that a window, a task bar or a picture asks for.
const QIcon& IconeDuJeu();

}  // namespace sudoku

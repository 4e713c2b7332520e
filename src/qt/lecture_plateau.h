#pragma once

class QAccessibleInterface;

namespace sudoku {

class PlateauQt;
class EditeurCase;

// A board for screen readers: it has a child for each box, which says in words where it is, what it holds and
// what is known of it from what the board shows, and after them the editor, which bears the name of the box
// that it lies over. Children are made only when a reader asks for them.
QAccessibleInterface* LecturePlateau(PlateauQt* plateau);
QAccessibleInterface* LectureEditeur(EditeurCase* editeur);

// The focus has moved to another box.
void AnnonceFocus(PlateauQt& plateau);
// Box i was written: says what a reader has been told otherwise.
void AnnonceChangement(PlateauQt& plateau, int i);

}  // namespace sudoku

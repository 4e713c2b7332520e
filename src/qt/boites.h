#pragma once

#include <QString>

#include "platform/systeme.h"

class QWidget;

namespace sudoku {

// The modal boxes. Each comes up above `proprietaire` (null for none) and, with `dessus`, above windows that
// stay on top; it returns when it is answered. Escape and the close box are the answer that changes nothing.
struct PlaceDeBoite {
  QWidget* proprietaire = nullptr;
  bool dessus = false;
  QString titre;
};

void MontreMessage(const PlaceDeBoite& place, const QString& texte);
bool PoseQuestion(const PlaceDeBoite& place, const QString& texte);
// The text as typed; empty when cancelled.
QString DemandeTexte(const PlaceDeBoite& place, const QString& texte, const QString& defaut);
// A path, of a file that need not exist; empty when cancelled.
QString DemandeChemin(const PlaceDeBoite& place, const DemandeFichier& demande);

}  // namespace sudoku

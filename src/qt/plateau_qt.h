#pragma once

#include <QAbstractScrollArea>
#include <QFont>
#include <functional>

#include "platform/fenetre.h"
#include "qt/geometrie_plateau.h"
#include "qt/pilote.h"

namespace sudoku {

class EditeurCase;

// The board: one widget that paints, from the records, the boxes and frames that are in view, and lays one
// real edit field over the box that has the focus. It is as large as what is seen of the board, and scrolls.
// While no box has the focus, after a new grid, it has the keyboard itself.
class PlateauQt : public QAbstractScrollArea {
 public:
  PlateauQt(Fenetre& fenetre, Pilote& pilote, QWidget* parent);

  // Shows what the records hold: costs the boxes that were written.
  void Synchronise();
  // The window's own keys, before the board and its editor get them. True: used up.
  std::function<bool(const QKeyEvent& evenement)> ToucheDeFenetre;

  // Forgets the boxes that were taken away. Before the size follows those that were made.
  void Relit();
  // The board at `zoom` times the size of the tables, in all `contenu` pixels large; `haut` twips of the
  // window above it belong to others.
  void Dimensionne(double zoom, Twips haut, QSize contenu);

  // The text is typed as a grid.
  void DeposeTexte(const QString& texte);

  const Plateau& LePlateau() const { return fenetre_.plateau; }
  const Fenetre& LaFenetre() const { return fenetre_; }
  EditeurCase& Editeur() { return *editeur_; }
  // Place of a box in pixels of the viewport.
  QRect RectangleCase(int i) const;
  // The box at a point of the viewport, 0 for none.
  int CaseSous(QPoint point) const;

 protected:
  void paintEvent(QPaintEvent* evenement) override;
  bool viewportEvent(QEvent* evenement) override;
  void resizeEvent(QResizeEvent* evenement) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* evenement) override;
  void contextMenuEvent(QContextMenuEvent* evenement) override;
  void keyPressEvent(QKeyEvent* evenement) override;
  void focusInEvent(QFocusEvent* evenement) override;
  void wheelEvent(QWheelEvent* evenement) override;
  bool event(QEvent* evenement) override;
  bool focusNextPrevChild(bool) override { return false; }

 private:
  bool Touche(QKeyEvent& evenement);
  bool ToucheDeConfort(const QKeyEvent& evenement);
  bool ToucheDeLieu(const QKeyEvent& evenement);
  bool Frappe(const QKeyEvent& evenement);
  bool AUneCase();
  void BrancheEditeur();
  void OuvrePalette();
  void CopieGrille();
  void Colle(bool remplace);
  void Tape(const Texte& texte);
  // An act of the user; where nothing was done, a tool tip that goes away says why.
  void Execute(const std::function<Texte()>& acte);
  void Dit(const QString& raison);

  void SuitFocus();
  void SuitEditeur();
  void SuitChangements();
  void Focalise(int i);
  void SelectionneEncore();
  void Tabule(bool avant);
  void MontreFocus();
  void PlaceEditeur();

  void Redimensionne();
  void MontreBarres();
  QPoint Origine() const;  // of the board in the viewport, device pixels
  QRect EnPixels(const QRect& appareil) const;
  QRect Anneau(int i) const;
  int TraitDAnneau() const;
  void Repeint(int i);
  void PeintZone(QPainter& p, const QRect& zone) const;
  void PeintCase(QPainter& p, int i) const;
  void PeintMarque(QPainter& p, const QRect& place, const CaseTexte& caseTexte) const;
  void PeintCadres(QPainter& p, const QRect& zone) const;
  void PeintRelief(QPainter& p, const QRect& zone) const;

  Fenetre& fenetre_;
  Pilote& pilote_;
  GeometriePlateau geometrie_;
  EditeurCase* editeur_;

  double zoom_ = 1;
  Twips haut_ = 0;
  QSize contenu_;
  QFont police_;  // of the boxes, in device pixels

  std::uint32_t constructions_ = 0;
  std::uint32_t redessins_ = 0;
  int focus_ = 0;  // the box that the editor lies over
};

}  // namespace sudoku

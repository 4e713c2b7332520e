#pragma once

#include <QEventLoop>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <vector>

#include "platform/fenetre.h"
#include "qt/elements.h"
#include "qt/mesure.h"
#include "qt/pilote.h"

class QAction;
class QMenuBar;

namespace sudoku {

class PlateauQt;

// A window of the game on the screen: draws any record of a window, with its elements, menu bar, timers and
// board, and carries what the user does to it. The inside has the size of the record as long as that fits the
// screen; a larger board scrolls below the labels, which stay, centred in what is visible. A window with a
// board can be made smaller or larger (Ctrl with +, - and 0, or with the wheel).
class FenetreQt : public QWidget {
 public:
  struct Maniere {
    bool modale = false;
    bool dessus = false;  // above windows that stay on top, whatever the record says
  };
  FenetreQt(Fenetre& fenetre, Pilote& pilote, QWidget* proprietaire, Maniere maniere);
  ~FenetreQt() override;

  // Shows what the record holds.
  void Synchronise();
  // Ticks that came while a handler ran.
  void RattrapeTics();
  // Runs the window until the record says that it is closed.
  void AttendFermeture();
  // As large as the record says, whatever the screen: for a picture.
  void MetSansEcran();

  const Fenetre& LaFenetre() const { return fenetre_; }
  PlateauQt* LePlateau() { return plateau_; }

 protected:
  void closeEvent(QCloseEvent* evenement) override;
  void keyPressEvent(QKeyEvent* evenement) override;
  void wheelEvent(QWheelEvent* evenement) override;
  void showEvent(QShowEvent* evenement) override;
  void dragEnterEvent(QDragEnterEvent* evenement) override;
  void dropEvent(QDropEvent* evenement) override;
  bool event(QEvent* evenement) override;

 private:
  struct Tic {
    Minuterie* minuterie;
    QTimer* horloge;
    int departs = 0;      // of which it runs
    bool attend = false;  // a tick came while a handler ran
  };
  struct Article {
    ArticleMenu* article;
    QAction* action;
  };

  void FabriqueElements();
  void Nomme(const ElementQt& element);
  void FabriqueMenus();
  void FabriqueMinuteries();
  void OrdonneTabulation();
  void Sonne(Tic& tic);
  static void Suit(Tic& tic);

  void SuitPile();
  void Dispose();
  QSize Disponible() const;
  void RentreDansLEcran();
  void CentreSurProprietaire();
  void PlaceACote();
  void ChangeZoom(int pas);
  bool ToucheDArticle(const QKeyEvent& evenement);
  bool ToucheDeZoom(const QKeyEvent& evenement);
  bool ToucheDeBouton(const QKeyEvent& evenement);
  bool Appuie(bool Element::*role);

  Fenetre& fenetre_;
  Pilote& pilote_;
  QMenuBar* barre_ = nullptr;
  QWidget* fond_;  // all below the menu bar
  PlateauQt* plateau_ = nullptr;
  std::vector<std::unique_ptr<ElementQt>> elements_;
  std::vector<Article> articles_;
  std::vector<Tic> tics_;
  QEventLoop boucle_;

  const double bureau_ = EchelleDuBureau();
  double zoom_ = 1;  // beside it
  int roue_ = 0;     // parts of a wheel's notch
  bool sansEcran_ = false;
  bool dessus_;
  bool placee_ = false;  // from then on the user moves it
  Texte titre_;
  QSize voulue_;  // Width, Height of the record when it was last laid out
};

}  // namespace sudoku

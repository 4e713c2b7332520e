#pragma once

#include <QTimer>
#include <memory>
#include <vector>

#include "platform/fichiers_disque.h"
#include "platform/systeme.h"
#include "qt/boites.h"
#include "qt/pilote.h"

namespace sudoku {

class FenetreQt;

// The window system on a desktop. It draws the records of windows and carries events to them; what they mean
// is the game's business. Needs a QApplication.
class SystemeQt : public Systeme, public Pilote {
 public:
  SystemeQt();
  ~SystemeQt() override;

  void Message(TexteVue texte, TexteVue titre = {}) override;
  bool Question(TexteVue texte) override;
  Texte Saisie(TexteVue texte, TexteVue titre, TexteVue defaut) override;
  void Fichier(DemandeFichier& demande) override;
  void MontreModale(Fenetre& fenetre) override;
  void Ajoute(Fenetre& fenetre) override;
  void Retire(Fenetre& fenetre) override;
  void DoEvents() override;
  [[noreturn]] void Fin() override;
  std::int64_t Maintenant() override;
  Fichiers& LesFichiers() override { return fichiers_; }
  std::optional<ValeurRegistre> Registre(std::uint32_t racine, TexteVue cle, TexteVue valeur) override;
  bool Lance(TexteVue chemin) override;

  void Execute(const std::function<void()>& acte) override;
  void Precede(const std::function<void()>& acte) override;
  void ExecuteCommande(const std::function<void()>& acte) override;
  bool Occupe() const override { return profondeur_ > 0; }

  // Somebody but the user's mouse wants the program to end: as if the first window's close box were clicked.
  // While a box or a modal window is open, the question comes above it; while a handler runs without one, it
  // waits for the next or for the handler's end.
  void DemandeFermeture();

  // The window on the screen of a record; null while it hasn't been shown yet.
  FenetreQt* FenetreDe(const Fenetre& fenetre);

 private:
  struct Connue {
    Fenetre* fenetre;
    std::unique_ptr<FenetreQt> qt;
  };
  void SynchroniseTout();
  void FinitHandler();
  void RattrapeFermeture();
  PlaceDeBoite Place(TexteVue titre);
  void AttendPremiere();
  QWidget* Devant() const;
  bool Dessus() const;

  FichiersDisque fichiers_;
  std::vector<Connue> fenetres_;
  std::vector<FenetreQt*> modales_;
  int profondeur_ = 0;
  bool fermetureDemandee_ = false;
  bool fermetureEnCours_ = false;  // its question is open
  QTimer retard_;                  // runs from a Precede until its changes are shown
  bool premiereVue_ = false;
};

}  // namespace sudoku

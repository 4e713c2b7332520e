#pragma once

#include <functional>
#include <map>
#include <ostream>
#include <utility>
#include <vector>

#include "platform/systeme.h"

namespace sudoku {

// What the end of the program throws. Nothing in the logic catches it.
struct FinDuProgramme {};

enum class GenreBoite { kMessage, kQuestion, kSaisie, kFichier, kFenetre };

// A modal box or window that is open, and its answer.
struct Boite {
  GenreBoite genre;
  Fenetre* fenetre = nullptr;  // of kFenetre
  bool close = false;
  bool oui = false;  // the answer to a question
  Texte texte = {};  // the answer to an input box or a file dialog; empty: cancelled
};

// A window system with no screen. What opens prints a line; while a box is open, `avance` is called until the
// box is answered: it runs the next step of a script, or says that none is left, and then the box closes with
// its default button (input box, file dialog: cancelled; window: destroyed). Time stands where it was set.
class SystemeSansEcran : public Systeme {
 public:
  SystemeSansEcran(std::ostream& sortie, Fichiers& fichiers, std::function<bool()> avance);

  void Message(TexteVue texte, TexteVue titre) override;
  bool Question(TexteVue texte) override;
  Texte Saisie(TexteVue texte, TexteVue titre, TexteVue defaut) override;
  void Fichier(DemandeFichier& demande) override;
  void MontreModale(Fenetre& fenetre) override;
  void Ajoute(Fenetre& fenetre) override { fenetres_.push_back(&fenetre); }
  void Retire(Fenetre& fenetre) override { std::erase(fenetres_, &fenetre); }
  void DoEvents() override {}
  [[noreturn]] void Fin() override;
  std::int64_t Maintenant() override { return maintenant_; }
  Fichiers& LesFichiers() override { return fichiers_; }
  std::optional<ValeurRegistre> Registre(std::uint32_t racine, TexteVue cle, TexteVue valeur) override;
  bool Lance(TexteVue chemin) override;

  // For the script.
  // From now on `attente` is called when a box opens, and comes back when it is answered: a box may be shown
  // to somebody instead.
  void AttendPar(std::function<void(Boite&)> attente) { attente_ = std::move(attente); }
  // Says that the session ends inside this box.
  void EcritFinDans(const Boite& boite);
  // The innermost open box; null if there is none.
  Boite* Dessus() { return boites_.empty() ? nullptr : boites_.back(); }
  // The innermost modal window, also when a box lies over it; null if there is none.
  Fenetre* FenetreModale();
  // The windows that stay.
  const std::vector<Fenetre*>& Fenetres() const { return fenetres_; }
  void MetHeure(std::int64_t instant) { maintenant_ = instant; }
  // A text under HKEY_LOCAL_MACHINE.
  void MetRegistre(TexteVue cle, TexteVue valeur, TexteVue texte);

 private:
  using Cle = std::pair<Texte, Texte>;
  static Cle CleDe(TexteVue cle, TexteVue valeur);
  void Attend(Boite& boite);
  void Ecrit(TexteVue ligne);

  std::ostream& sortie_;
  Fichiers& fichiers_;
  std::function<bool()> avance_;
  std::function<void(Boite&)> attente_;
  std::vector<Boite*> boites_;
  std::vector<Fenetre*> fenetres_;
  std::map<Cle, Texte> registre_;
  std::int64_t maintenant_;
};

}  // namespace sudoku

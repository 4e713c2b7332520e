#include "lot/deroule.h"

#include <algorithm>
#include <optional>

#include "lot/grille.h"
#include "lot/lignes.h"
#include "lot/progres.h"
#include "lot/sortie.h"

namespace sudoku::lot {
namespace {

// Exit statuses, the graver the higher.
constexpr int kIllisible = 1;
constexpr int kAlerte = 3;

// Bytes of lines that a worker takes at once: work for a tenth of a millisecond or more, whatever the side.
constexpr std::int64_t kPrise = 1024;

// Numbers the good lines.
class Numeroteur {
 public:
  explicit Numeroteur(const Appel& appel) : lecteur_(jeu_, appel.symboles) {}
  std::int64_t Rang(std::string_view champ) { return lecteur_.Lit(champ) ? 0 : ++bonnes_; }

 private:
  GameState jeu_;
  LecteurGrille lecteur_;
  std::int64_t bonnes_ = 0;
};

class Deroulement {
 public:
  explicit Deroulement(const Appel& appel) : appel_(appel), progres_(TailleDesFichiers(appel.fichiers)) {}

  void Compte() { numeroteur_.emplace(appel_); }
  void Ecrit(std::string_view texte) { sortie_.Ecrit(texte); }
  void Travaille(const Atelier& atelier) {
    if (appel_.processus > 1) {
      TravailleEnsemble(atelier);
    } else {
      TravailleSeul(*atelier());
    }
  }
  int Statut() const { return alerte_ ? kAlerte : illisible_ ? kIllisible : 0; }

 private:
  void TravailleSeul(Ouvrier& ouvrier) {
    Poste poste;
    poste.reponse.coule = [this](Reponse& reponse) {
      Coule(reponse.sortie);
      reponse.sortie.clear();
    };
    while (Lit(poste, false)) {
      poste.Occupe(ouvrier);
      Livre(poste);
    }
  }
  void TravailleEnsemble(const Atelier& atelier) {
    const Equipe equipe(
        appel_.processus, atelier, [this](Poste& poste, bool suite) { return Lit(poste, suite); },
        [this](const Poste& poste) { Livre(poste); }, [this](std::string_view texte) { Coule(texte); });
  }

  // Fills the place with the next line of all files, or with what is wrong with a file. False: there is none.
  // Lines that are taken together are at hand, so that none waits for another to come in, and few where few
  // are left, so that each worker has some.
  bool Lit(Poste& poste, bool suite) {
    const std::int64_t debut = lignes_.Octets();
    if (suite && (!ouvert_ || debut >= finPrise_)) return false;
    for (; fichier_ < appel_.fichiers.size(); ++fichier_, ouvert_ = false) {
      const std::string& fichier = appel_.fichiers[fichier_];
      std::optional<std::string> erreur;
      if (!ouvert_) erreur = lignes_.Ouvre(fichier);
      ouvert_ = true;
      if (const auto ligne = erreur ? std::nullopt : lignes_.Suivante(!suite)) {
        lecteurAttend_ = false;
        poste.faute.clear();
        poste.champ = ligne->champ;
        poste.fichier = &fichier;
        poste.numero = ligne->numero;
        poste.lus = lignes_.Octets();
        if (!suite) finPrise_ = debut + std::min(kPrise, lignes_.Presents() / (4 * appel_.processus));
        if (numeroteur_) poste.reponse.rang = numeroteur_->Rang(ligne->champ);
        return true;
      }
      if (suite) return false;
      if (!erreur) erreur = lignes_.Erreur();
      if (!erreur) continue;
      poste.faute = fichier + ": " + *erreur;
      ++fichier_;
      ouvert_ = false;
      return true;
    }
    return false;
  }

  // Called for one line at a time, in their order.
  void Livre(const Poste& poste) {
    if (!poste.faute.empty()) {
      Signale(poste.faute, kIllisible);
      return;
    }
    progres_.Avance(poste.lus);
    const auto signale = [&](const std::string& texte, int statut) {
      Signale(*poste.fichier + ":" + std::to_string(poste.numero) + ": " + texte, statut);
    };
    if (!poste.reponse.erreur.empty()) {
      signale(poste.reponse.erreur, kIllisible);
      return;
    }
    if (!poste.reponse.alerte.empty()) signale(poste.reponse.alerte, kAlerte);
    Coule(poste.reponse.sortie);
  }

  void Coule(std::string_view texte) {
    sortie_.Ecrit(texte);
    if (lecteurAttend_) sortie_.Pousse();
  }

  // Where both streams go to one place, messages stand among the results.
  void Signale(const std::string& texte, int statut) {
    (statut == kAlerte ? alerte_ : illisible_) = true;
    sortie_.Pousse();
    progres_.Message(texte);
  }

  const Appel& appel_;
  std::atomic<bool> illisible_{false};
  std::atomic<bool> alerte_{false};
  std::atomic<bool> lecteurAttend_{false};  // for more to read: who finishes a grid shows it at once
  std::optional<Numeroteur> numeroteur_;
  Lignes lignes_{[this] {
    lecteurAttend_ = true;
    sortie_.Pousse();
  }};
  std::size_t fichier_ = 0;  // the file that is read, and whether it has been opened
  bool ouvert_ = false;
  std::int64_t finPrise_ = 0;  // how far lines are taken together, in bytes of all files
  Progres progres_;
  Sortie sortie_;
};

}  // namespace

int Deroule(const Appel& appel, const Atelier& atelier) {
  Deroulement deroulement(appel);
  deroulement.Travaille(atelier);
  return deroulement.Statut();
}

int DeroulePage(const Appel& appel, const Atelier& atelier, std::string_view avant, std::string_view apres) {
  Deroulement deroulement(appel);
  deroulement.Compte();
  deroulement.Ecrit(avant);
  deroulement.Travaille(atelier);
  deroulement.Ecrit(apres);
  return deroulement.Statut();
}

}  // namespace sudoku::lot

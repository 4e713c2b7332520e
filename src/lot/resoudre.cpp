#include "lot/resoudre.h"

#include <algorithm>
#include <span>

#include "lot/grille.h"
#include "lot/symboles.h"
#include "solver/auto_driver.h"

namespace sudoku::lot {
namespace {

// Answers every box of a run; keeps the last message, and counts those of the search.
class Repondeur : public PlateauAuto {
 public:
  void Affiche() override {}
  void Message(TexteVue texte) override {
    if (texte == kRetourArriere) {
      ++retours_;
      return;
    }
    if (texte == dernier_) return;
    dernier_ = texte;
    final_ = VersUtf8(texte);
  }

  void Commence() { retours_ = 0; }
  std::uint64_t Retours() const { return retours_; }
  const std::string& Final() const { return final_; }
  // The n-th number in the final message, from 0; "0" where it has none.
  std::string_view Nombre(int n) const;

 private:
  static constexpr TexteVue kRetourArriere = U"Retour arrière ! Procédure à vérifier";

  std::uint64_t retours_ = 0;
  Texte dernier_;
  std::string final_;  // the same in UTF-8
};

std::string_view Repondeur::Nombre(int n) const {
  constexpr std::string_view kChiffres = "0123456789";
  std::string_view reste = final_;
  for (;; --n) {
    const std::size_t debut = reste.find_first_of(kChiffres);
    if (debut == std::string_view::npos) return "0";
    reste.remove_prefix(debut);
    const std::size_t longueur = std::min(reste.find_first_not_of(kChiffres), reste.size());
    if (n == 0) return reste.substr(0, longueur);
    reste.remove_prefix(longueur);
  }
}

class Resoudre : public Ouvrier {
 public:
  explicit Resoudre(const Appel& appel) : deduction_(appel.deduction), lecteur_(jeu_, appel.symboles) {}

  void Traite(std::string_view champ, Reponse& reponse) override {
    if (auto erreur = lecteur_.Lis(champ)) {
      reponse.erreur = std::move(*erreur);
      return;
    }
    jeu_.VgEtat = kJeu;
    repondeur_.Commence();
    driver_.JeuAuto(true, !deduction_);
    Ecris(champ, reponse.sortie);
  }

 private:
  void Ecris(std::string_view champ, std::string& ligne) {
    const Bloc& bloc = jeu_.VmGrille.Donnees();
    ligne += champ;
    ligne += '\t';
    symboles_.Ecris(*bloc.alphabet, std::span(bloc.saisie).subspan(1), ligne);
    for (const int n : {0, 1}) (ligne += '\t') += repondeur_.Nombre(n);
    (ligne += '\t') += std::to_string(repondeur_.Retours());
    ((ligne += '\t') += repondeur_.Final()) += '\n';
  }

  bool deduction_;
  GameState jeu_;
  Evaluateur moteur_{jeu_};
  Repondeur repondeur_;
  AutoDriver driver_{jeu_, moteur_, repondeur_, Lecture::kContenus};
  LecteurGrille lecteur_;
  SymbolesUtf8 symboles_;
};

}  // namespace

std::unique_ptr<Ouvrier> FaisResoudre(const Appel& appel) {
  return std::make_unique<Resoudre>(appel);
}

}  // namespace sudoku::lot

#include "lot/resoudre.h"

#include <span>

#include "lot/grille.h"
#include "lot/repondeur.h"
#include "lot/symboles.h"

namespace sudoku::lot {
namespace {

class Resoudre : public Ouvrier {
 public:
  explicit Resoudre(const Appel& appel) : deduction_(appel.deduction), lecteur_(jeu_, appel.symboles) {}

  void Traite(std::string_view champ, Reponse& reponse) override {
    if (auto erreur = lecteur_.Lit(champ)) {
      reponse.erreur = std::move(*erreur);
      return;
    }
    jeu_.VgEtat = kJeu;
    driver_.JeuAuto(true, !deduction_);
    Ecrit(champ, reponse.sortie);
  }

 private:
  void Ecrit(std::string_view champ, std::string& ligne) {
    const Bloc& bloc = jeu_.VmGrille.Donnees();
    ligne += champ;
    ligne += '\t';
    symboles_.Ecrit(*bloc.alphabet, std::span(bloc.saisie).subspan(1), ligne);
    const Comptes& comptes = driver_.DerniersComptes();
    for (const std::uint64_t n : {comptes.faites, comptes.refutees, comptes.retours}) {
      (ligne += '\t') += std::to_string(n);
    }
    ((ligne += '\t') += repondeur_.Final()) += '\n';
  }

  bool deduction_;
  GameState jeu_;
  Evaluateur evaluateur_{jeu_};
  Repondeur repondeur_;
  AutoDriver driver_{jeu_, evaluateur_, repondeur_, Lecture::kContenus};
  LecteurGrille lecteur_;
  SymbolesUtf8 symboles_;
};

}  // namespace

std::unique_ptr<Ouvrier> FabriqueResoudre(const Appel& appel) {
  return std::make_unique<Resoudre>(appel);
}

}  // namespace sudoku::lot

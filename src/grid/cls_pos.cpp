#include "grid/cls_pos.h"

#include "grid/game_state.h"

namespace sudoku {
std::int16_t ClsPos::Ligne() const {
  return bloc_->geometrie->Unite(kLigne, index_);
}
std::int16_t ClsPos::Colonne() const {
  return bloc_->geometrie->Unite(kColonne, index_);
}
std::int16_t ClsPos::Carre() const {
  return bloc_->geometrie->Unite(kCarre, index_);
}

Texte ClsPos::Possible() const {
  const Bloc& bloc = *bloc_;
  if (bloc.possibleTexte[Rang(index_)] != kVide)
    return bloc.alphabet->TexteDe(bloc.possibleTexte[Rang(index_)]);
  Texte possible;
  for (int p = 0; p < bloc.alphabet->Taille(); ++p) {
    if (bloc.Candidat(index_, p)) possible += bloc.alphabet->Symboles()[Rang(p)];
  }
  return possible;
}

const Texte& ClsPos::SolutionSure() const {
  return bloc_->alphabet->TexteDe(bloc_->sure[Rang(index_)]);
}
const Texte& ClsPos::SolutionPoss() const {
  return bloc_->alphabet->TexteDe(bloc_->poss[Rang(index_)]);
}
std::int32_t ClsPos::Etat() const {
  return bloc_->etat[Rang(index_)];
}

const Texte& ClsPos::Valeur() const {
  return bloc_->alphabet->TexteDe(bloc_->Compte(index_) ? bloc_->saisie[Rang(index_)] : kVide);
}

void ClsPos::Valeur(TexteVue Value) {
  GameState& jeu = *bloc_->jeu;
  if (jeu.VgEtat == kTermine) jeu.VgEtat = kJeu;
  const Code code = bloc_->alphabet->Numero(Value);
  const Code sure = bloc_->sure[Rang(index_)];
  std::int32_t& etat = bloc_->etat[Rang(index_)];
  if (code == kVide) {
    etat = kProuvee;
  } else if (jeu.VgEtat == kSaisieGrille) {
    const bool accepte = bloc_->Permet(index_, code) && (sure == kVide || bloc_->alphabet->Egaux(sure, code));
    if (!accepte) {
      jeu.Message(U"Impossible");
      return;
    }
    etat = kDonnee;
  } else if (sure == kVide) {
    etat = bloc_->Permet(index_, code) ? kPossible : kErronee;
  } else {
    etat = bloc_->alphabet->Egaux(sure, code) ? kProuvee : kErronee;
  }
  bloc_->saisie[Rang(index_)] = code;
}

const Texte& ClsPos::ValeurSaisie() const {
  return bloc_->alphabet->TexteDe(bloc_->saisie[Rang(index_)]);
}

void ClsPos::Load(TexteVue LoadValue, std::int32_t LoadEtat) {
  bloc_->saisie[Rang(index_)] = bloc_->alphabet->Numero(LoadValue);
  bloc_->etat[Rang(index_)] = LoadEtat;
}

}  // namespace sudoku

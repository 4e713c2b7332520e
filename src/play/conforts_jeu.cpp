#include "play/conforts_jeu.h"

#include "grid/grille_texte.h"

namespace sudoku {
namespace {

TexteVue EnMots(Marque marque) {
  switch (marque) {
    case Marque::kDonnee:
      return U", donnée";
    case Marque::kCertaine:
      return U", case certaine";
    case Marque::kPossible:
      return U", case possible";
    case Marque::kHypothetique:
      return U", saisie hypothétique";
    case Marque::kErronee:
      return U", saisie erronée";
    case Marque::kAucune:
      break;
  }
  return {};
}

Texte DecritPlace(const GameState& jeu, int i) {
  const ClsPos cellule = jeu.VmGrille(i);
  return U"case " + Decimal(i) + U", ligne " + Decimal(cellule.Ligne()) + U", colonne " +
         Decimal(cellule.Colonne()) + U", carré " + Decimal(cellule.Carre());
}

// Read aloud often: first what changes most.
Texte DecritCase(const GameState& jeu, const Plateau& plateau, int i) {
  const CaseTexte& boite = plateau.TxtCase(i);
  return (boite.Text.empty() ? Texte(U"vide") : boite.Text) + Texte(EnMots(boite.marque)) + U", " +
         DecritPlace(jeu, i);
}

Texte EcritGrille(const Plateau& plateau) {
  std::vector<Texte> contenus;
  for (int i = 1; i <= plateau.Cases(); ++i) contenus.push_back(plateau.TxtCase(i).Text);
  return EcritGrilleTexte(contenus);
}

}  // namespace

Conforts ConfortsDuJeu(const GameState& jeu, const Plateau& plateau, Saisies& saisies, Commands& commandes) {
  return {
      .Symboles = [&jeu] { return jeu.VmGrille.Donnees().alphabet->Symboles(); },
      .Annule = [&saisies] { return saisies.Annule(); },
      .Retablit = [&saisies] { return saisies.Retablit(); },
      .Colle = [&saisies](TexteVue texte) { return saisies.Colle(texte); },
      .EcritGrille = [&plateau] { return EcritGrille(plateau); },
      .DecritPlace = [&jeu](int i) { return DecritPlace(jeu, i); },
      .DecritCase = [&](int i) { return DecritCase(jeu, plateau, i); },
      .OuvreFichier = [&commandes](TexteVue chemin) { commandes.OuvreFichier(chemin); },
  };
}

}  // namespace sudoku

#include "play/conforts_jeu.h"

#include "grid/grille_texte.h"

namespace sudoku {
namespace {

constexpr TexteVue kTouches =
    U"Un symbole : l'écrit dans la case\n"
    U"Retour arrière, Suppr : effacent la case\n"
    U"Flèches, Tab : changent de case ; Tab passe les cases données\n"
    U"Début, Fin : première, dernière case de la ligne\n"
    U"Ctrl+Début, Ctrl+Fin : première, dernière case de la grille\n"
    U"Page haut, Page bas : une page plus haut, plus bas\n"
    U"Ctrl+Espace : palette des symboles\n"
    U"Ctrl+Z, Ctrl+Y (ou Ctrl+Maj+Z) : annule, rétablit\n"
    U"Ctrl+C, Ctrl+X, Ctrl+V : copie, coupe, colle le symbole ; Ctrl+V colle aussi une grille\n"
    U"Ctrl+Maj+C, Ctrl+Maj+V : copie, colle la grille entière\n"
    U"Ctrl+O, Ctrl+S : charge, sauve\n"
    U"Ctrl+plus, Ctrl+moins, Ctrl+0 : plateau plus grand, plus petit, normal\n"
    U"Alt+J, Alt+? : ouvrent les menus\n"
    U"Entrée, Échap : bouton par défaut d'une boîte ; fermer ou répondre Non\n"
    U"F1 : cette liste";

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
  const CaseTexte& caseTexte = plateau.TxtCase(i);
  return (caseTexte.Text.empty() ? Texte(U"vide") : caseTexte.Text) + Texte(EnMots(caseTexte.marque)) +
         U", " + DecritPlace(jeu, i);
}

Texte Verrou(const Plateau& plateau, int i) {
  if (!plateau.TxtCase(i).Locked) return {};
  return U"La case " + Decimal(i) + U" est donnée et ne change plus";
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
      .EstGrille = [&saisies](TexteVue texte) { return saisies.EstGrille(texte); },
      .Verrou = [&plateau](int i) { return Verrou(plateau, i); },
      .MontreTouches = [&jeu] { jeu.Message(kTouches); },
      .EcritGrille = [&plateau] { return EcritGrille(plateau); },
      .DecritPlace = [&jeu](int i) { return DecritPlace(jeu, i); },
      .DecritCase = [&](int i) { return DecritCase(jeu, plateau, i); },
      .OuvreFichier = [&commandes](TexteVue chemin) { commandes.OuvreFichier(chemin); },
  };
}

}  // namespace sudoku

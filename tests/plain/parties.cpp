#include "plain/parties.h"

#include <algorithm>

namespace sudoku::plain {
namespace {

// Figures are rare. The engine finds boards that have one, of the two kinds of unit that are asked for if it
// can; what they give is compared like all else.
Plateau TireFigure(Hasard& hasard, int n) {
  const int type = hasard.Entier(3), type2 = (type + 1 + hasard.Entier(2)) % 3;
  Plateau trouve;
  for (int essais = 20000 / (n * n); essais > 0; --essais) {
    const Plateau plateau = hasard.UneFoisSur(2) ? PlateauAResoudre(hasard, n) : PlateauAuHasard(hasard, n);
    GameState jeu;
    Evaluateur evaluateur(jeu);
    Pose(plateau, jeu, evaluateur);
    evaluateur.Evaluation(jeu.VmGrille, 2);
    for (const Argument& a : jeu.VmGrille.Donnees().journal.arguments) {
      if (a.genre != Argument::Genre::kFigure) continue;
      if (a.type == type && a.type2 == type2) return plateau;
      trouve = plateau;
    }
  }
  return trouve.cases.empty() ? PlateauAuHasard(hasard, n) : trouve;
}

Plateau Tire(Hasard& hasard, const Genres& genres) {
  const int n = genres.tailles[At(hasard.Entier(static_cast<int>(genres.tailles.size())))];
  if (n > 4 && n <= 25 && hasard.UneFoisSur(3)) return TireFigure(hasard, n);
  if (genres.solveur && !hasard.UneFoisSur(3)) return PlateauAResoudre(hasard, n);
  // Every entry that is judged anew costs an evaluation: large grids get few.
  for (;;) {
    const Plateau plateau = PlateauAuHasard(hasard, n);
    const auto entrees =
        std::ranges::count_if(plateau.cases, [](const Contenu& c) { return c.etat > kSure; });
    if (n <= 25 || entrees < 8) return plateau;
  }
}

int Passes(Hasard& hasard, const Jeu& jeu) {
  // With one pass an evaluation takes the mode as it is; only the entry of a grid asks for that.
  const bool une = jeu.VgEtat == kEntree ? !hasard.UneFoisSur(4) : jeu.VgEtat == kJeu && hasard.UneFoisSur(8);
  return une ? 1 : 2;
}

std::string Avance(Hasard& hasard, const Genres& genres, Paire& paire) {
  const Jeu& jeu = paire.Simple();
  if (genres.solveur && hasard.Pourcent(70)) {
    return paire.Joue({.reset = !hasard.UneFoisSur(3),
                       .guess = hasard.Pourcent(70),
                       .silence = hasard.UneFoisSur(4),
                       .contenus = hasard.UneFoisSur(3)});
  }
  const int choix = hasard.Entier(8);
  if (choix == 0) return paire.Evalue(Passes(hasard, jeu));
  if (choix == 1) return paire.Recopie();
  if (choix <= 3 && jeu.VgEtat != kEntree) return paire.Remplit();
  if (choix == 4 && jeu.VmTaille <= 9 && hasard.UneFoisSur(4)) {
    return paire.Joue({.reset = true, .silence = true});
  }
  const int cellule = 1 + hasard.Entier(jeu.VmTaille * jeu.VmTaille);
  return paire.Saisit(cellule,
                      SaisieAuHasard(hasard, jeu.VmValeurs, jeu.VmGrille[At(cellule - 1)]->Possible));
}

// Plays random game number `graine`. What differs, or nothing.
std::string Joue(std::uint64_t graine, const Genres& genres, Paire& paire) {
  Hasard hasard(graine);
  for (int plateaux = 1 + hasard.Entier(3); plateaux > 0; --plateaux) {
    std::string ecarts = paire.Charge(Tire(hasard, genres));
    if (ecarts.empty()) ecarts = paire.Evalue(Passes(hasard, paire.Simple()));
    for (int n = hasard.Entier(genres.actions + 1); n > 0 && ecarts.empty() && !paire.Abandonnee(); --n) {
      ecarts = Avance(hasard, genres, paire);
    }
    if (!ecarts.empty()) return ecarts;
  }
  return {};
}

}  // namespace

std::string JoueAuHasard(std::uint64_t premiere, std::uint64_t parties, const Genres& genres, Paire& paire) {
  for (std::uint64_t graine = premiere; graine < premiere + parties; ++graine) {
    const std::string ecarts = Joue(graine, genres, paire);
    if (!ecarts.empty()) return "game " + std::to_string(graine) + ecarts;
  }
  return {};
}

}  // namespace sudoku::plain

#include "plain/parties.h"

#include <algorithm>

namespace sudoku::plain {
namespace {

using Genre = Action::Genre;

std::size_t At(int i) {
  return static_cast<std::size_t>(i);
}

// Figures are rare. The engine finds boards that have one, of the two kinds of unit that are asked for if it
// can; what they give is compared like all else.
Plateau TireFigure(Hasard& hasard, int n) {
  const int type = hasard.Entier(3), type2 = (type + 1 + hasard.Entier(2)) % 3;
  Plateau trouve;
  for (int essais = 20000 / (n * n); essais > 0; --essais) {
    const Plateau plateau = hasard.UneFoisSur(2) ? PlateauAResoudre(hasard, n) : PlateauAuHasard(hasard, n);
    GameState jeu;
    Evaluateur moteur(jeu);
    sudoku::Grille grille = sudoku::Grille::Nouvelle(jeu, plateau.symboles);
    for (int i = 0; i < n * n; ++i)
      grille(i + 1).Load(plateau.cases[At(i)].valeur, plateau.cases[At(i)].etat);
    moteur.Evaluation(grille, 2);
    for (const Argument& a : grille.Donnees().journal.arguments) {
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

Action Evaluation(Hasard& hasard, const Jeu& jeu) {
  // With one pass an evaluation takes the mode as it is; only the entry of a grid asks for that.
  const bool une = jeu.VgEtat == kEntree ? !hasard.UneFoisSur(4) : jeu.VgEtat == kJeu && hasard.UneFoisSur(8);
  return {.genre = Genre::kEvalue, .nombre = une ? 1 : 2};
}

Action Run(Hasard& hasard) {
  return {.genre = Genre::kJoue,
          .reset = !hasard.UneFoisSur(3),
          .guess = hasard.Pourcent(70),
          .silence = hasard.UneFoisSur(4),
          .contenus = hasard.UneFoisSur(3)};
}

Action Tire(Hasard& hasard, const Genres& genres, const Jeu& jeu) {
  if (genres.solveur && hasard.Pourcent(70)) return Run(hasard);
  switch (hasard.Entier(8)) {
    case 0:
      return Evaluation(hasard, jeu);
    case 1:
      return {.genre = Genre::kRecopie};
    case 2:
    case 3:
      if (jeu.VgEtat != kEntree) return {.genre = Genre::kRemplit};
      break;
    case 4:
      if (jeu.VmTaille <= 9 && hasard.UneFoisSur(4))
        return {.genre = Genre::kJoue, .reset = true, .silence = true};
      break;
    default:
      break;
  }
  const int cellule = 1 + hasard.Entier(jeu.VmTaille * jeu.VmTaille);
  return {.genre = Genre::kSaisit,
          .nombre = cellule,
          .texte = SaisieAuHasard(hasard, jeu.VmValeurs, jeu.VmGrille[At(cellule)]->Possible)};
}

std::string Decrit(const Action& a) {
  switch (a.genre) {
    case Genre::kCharge:
      return "board, " + plain::Decrit(a.plateau);
    case Genre::kEvalue:
      return "evaluation, passes " + std::to_string(a.nombre);
    case Genre::kSaisit:
      return "type \"" + VersUtf8(a.texte) + "\" into cell " + std::to_string(a.nombre);
    case Genre::kRemplit:
      return "fill in, evaluation";
    case Genre::kRecopie:
      return "copy, evaluation of the copy";
    case Genre::kJoue:
      break;
  }
  return std::string("automatic play, reset ") + (a.reset ? "1" : "0") + ", guess " + (a.guess ? "1" : "0") +
         ", silence " + (a.silence ? "1" : "0") + (a.contenus ? ", contents alone" : "");
}

bool Ecart(const Partie& partie, std::size_t boitesMax) {
  return !Rejoue(partie, boitesMax).empty();
}

// Empties the board's cells one by one, then makes those left givens, where the difference stays.
void ReduitPlateau(Partie& partie, std::size_t rang, std::size_t boitesMax) {
  for (std::size_t i = 0; i < partie[rang].plateau.cases.size(); ++i) {
    for (const Contenu& plus : {Contenu{}, Contenu{partie[rang].plateau.cases[i].valeur, kDonnee}}) {
      Partie essai = partie;
      if (essai[rang].plateau.cases[i] == plus) break;
      essai[rang].plateau.cases[i] = plus;
      if (!Ecart(essai, boitesMax)) continue;
      partie = essai;
      break;
    }
  }
}

}  // namespace

std::string Decrit(const Partie& partie) {
  std::string texte;
  for (const Action& action : partie) texte += "  " + Decrit(action) + "\n";
  return texte;
}

std::string JoueAuHasard(std::uint64_t graine, const Genres& genres, Paire& paire, Partie& jouee) {
  Hasard hasard(graine);
  jouee.clear();
  const auto fait = [&](Action action) {
    jouee.push_back(std::move(action));
    return paire.Fait(jouee.back());
  };
  for (int plateaux = 1 + hasard.Entier(3); plateaux > 0; --plateaux) {
    std::string ecarts = fait({.genre = Genre::kCharge, .plateau = Tire(hasard, genres)});
    if (ecarts.empty()) ecarts = fait(Evaluation(hasard, paire.Simple()));
    for (int n = hasard.Entier(genres.actions + 1); n > 0 && ecarts.empty() && !paire.Abandonnee(); --n) {
      ecarts = fait(Tire(hasard, genres, paire.Simple()));
    }
    if (!ecarts.empty()) return ecarts;
  }
  return {};
}

std::string Rejoue(const Partie& partie, std::size_t boitesMax) {
  Paire paire(boitesMax);
  for (const Action& action : partie) {
    if (paire.Abandonnee() && action.genre != Genre::kCharge) continue;
    if (std::string ecarts = paire.Fait(action); !ecarts.empty()) return ecarts;
  }
  return {};
}

Partie Reduit(Partie partie, std::size_t boitesMax) {
  for (std::size_t avant = 0; avant != partie.size();) {
    avant = partie.size();
    for (std::size_t i = partie.size(); i-- > 0;) {
      Partie essai = partie;
      essai.erase(essai.begin() + static_cast<std::ptrdiff_t>(i));
      if (!essai.empty() && essai[0].genre == Genre::kCharge && Ecart(essai, boitesMax)) partie = essai;
    }
  }
  for (std::size_t i = 0; i < partie.size(); ++i) {
    if (partie[i].genre == Genre::kCharge) ReduitPlateau(partie, i, boitesMax);
  }
  return partie;
}

}  // namespace sudoku::plain

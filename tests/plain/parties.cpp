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

Action Evaluation(Hasard& hasard, const Jeu& jeu) {
  // With one pass an evaluation takes the mode as it is; only the entry of a grid asks for that.
  const bool une = jeu.VgEtat == kEntree ? !hasard.UneFoisSur(4) : jeu.VgEtat == kJeu && hasard.UneFoisSur(8);
  return {.genre = Genre::kEvalue, .nombre = une ? 1 : 2};
}

Action Tire(Hasard& hasard, const Genres& genres, const Jeu& jeu) {
  if (genres.solveur && hasard.Pourcent(70)) {
    return {.genre = Genre::kJoue,
            .reset = !hasard.UneFoisSur(3),
            .guess = hasard.Pourcent(70),
            .silence = hasard.UneFoisSur(4),
            .contenus = hasard.UneFoisSur(3)};
  }
  const int choix = hasard.Entier(8);
  if (choix == 0) return Evaluation(hasard, jeu);
  if (choix == 1) return {.genre = Genre::kRecopie};
  if (choix <= 3 && jeu.VgEtat != kEntree) return {.genre = Genre::kRemplit};
  if (choix == 4 && jeu.VmTaille <= 9 && hasard.UneFoisSur(4)) {
    return {.genre = Genre::kJoue, .reset = true, .silence = true};
  }
  const int cellule = 1 + hasard.Entier(jeu.VmTaille * jeu.VmTaille);
  return {.genre = Genre::kSaisit,
          .nombre = cellule,
          .texte = SaisieAuHasard(hasard, jeu.VmValeurs, jeu.VmGrille[At(cellule - 1)]->Possible)};
}

// Plays random game number `graine`; `jouee` receives its steps. What differs, or nothing.
std::string Joue(std::uint64_t graine, const Genres& genres, Paire& paire, Partie& jouee) {
  Hasard hasard(graine);
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

// Takes the shorter game if it still shows a difference.
bool Garde(Partie& partie, const Partie& essai) {
  if (essai.empty() || essai[0].genre != Genre::kCharge || Rejoue(essai).empty()) return false;
  partie = essai;
  return true;
}

void Reduit(Partie& partie) {
  for (std::size_t avant = 0; avant != partie.size();) {
    avant = partie.size();
    for (std::size_t i = partie.size(); i-- > 0;) {
      Partie essai = partie;
      essai.erase(essai.begin() + static_cast<std::ptrdiff_t>(i));
      Garde(partie, essai);
    }
  }
  for (std::size_t rang = 0; rang < partie.size(); ++rang) {
    for (std::size_t i = 0; i < partie[rang].plateau.cases.size(); ++i) {
      Partie essai = partie;
      essai[rang].plateau.cases[i] = {};
      Garde(partie, essai);
    }
  }
}

std::string Decrit(const Action& a) {
  static const char* const noms[] = {"board", "evaluation", "type", "fill in", "copy", "automatic play"};
  std::string texte = std::string("  ") + noms[static_cast<int>(a.genre)];
  if (a.nombre > 0) texte += " " + std::to_string(a.nombre) + " \"" + VersUtf8(a.texte) + "\"";
  if (a.reset) texte += " reset";
  if (a.guess) texte += " guess";
  if (a.silence) texte += " silence";
  if (a.contenus) texte += " contents";
  if (a.genre != Genre::kCharge) return texte + "\n";
  texte += " " + VersUtf8(a.plateau.symboles) + ", mode " + std::to_string(a.plateau.mode) + ":";
  for (std::size_t i = 0; i < a.plateau.cases.size(); ++i) {
    const Contenu& c = a.plateau.cases[i];
    if (c == Contenu{}) continue;
    texte += " " + std::to_string(i + 1) + "=\"" + VersUtf8(c.valeur) + "\"/" + std::to_string(c.etat);
  }
  return texte + "\n";
}

}  // namespace

std::string JoueAuHasard(std::uint64_t premiere, std::uint64_t parties, const Genres& genres, Paire& paire) {
  for (std::uint64_t graine = premiere; graine < premiere + parties; ++graine) {
    Partie jouee;
    const std::string ecarts = Joue(graine, genres, paire, jouee);
    if (ecarts.empty()) continue;
    const std::string ou = "game " + std::to_string(graine) + ecarts + "\n";
    if (Rejoue(jouee).empty()) return ou + "only after the games before it\n" + Decrit(jouee);
    Reduit(jouee);
    return ou + Decrit(jouee) + Rejoue(jouee);
  }
  return {};
}

std::string Rejoue(const Partie& partie) {
  Paire paire;
  for (const Action& action : partie) {
    if (paire.Abandonnee() && action.genre != Genre::kCharge) continue;
    if (std::string ecarts = paire.Fait(action); !ecarts.empty()) return ecarts;
  }
  return {};
}

std::string Decrit(const Partie& partie) {
  std::string texte;
  for (const Action& action : partie) texte += Decrit(action);
  return texte;
}

}  // namespace sudoku::plain

#include "storage/best_scores.h"

#include <algorithm>
#include <utility>

#include "storage/temps.h"

namespace sudoku {
namespace {

constexpr std::size_t kPlaces = 10;

}  // namespace

bool HorsClassement(const std::vector<TypScore>& VgScores, double temps) {
  return VgScores.size() > kPlaces && temps >= VgScores.back().Temps;
}

std::vector<TypScore> AvecScore(const std::vector<TypScore>& VgScores, TypScore score) {
  const std::size_t gardees = std::min(VgScores.size() - 1, kPlaces - 1);
  std::vector<TypScore> table(VgScores.begin(), VgScores.begin() + static_cast<std::ptrdiff_t>(gardees) + 1);
  // A table from a file may be out of order: the place is before the first longer time, not by bisection.
  const auto place = std::find_if(table.begin() + 1, table.end(),
                                  [&](const TypScore& ancien) { return score.Temps < ancien.Temps; });
  table.insert(place, std::move(score));
  return table;
}

void BestScores::SetScores() {
  const double temps = Jours(jeu_.VmFin - jeu_.VmDebut);
  if (!HorsClassement(jeu_.VgScores, temps)) {
    const Texte nom = systeme_.Saisie(U"Veuillez saisir votre nom", U"Meilleur score !", {});
    jeu_.VgScores = AvecScore(jeu_.VgScores, {nom, temps});
  }
  ShowScores();
}

void BestScores::ShowScores() {
  const auto& VgScores = jeu_.VgScores;
  Texte texte;
  for (std::size_t i = 1; i < VgScores.size(); ++i) {
    texte += Decimal(static_cast<std::int64_t>(i)) + U" - " + VgScores[i].Nom + U" - " +
             TempsEnTexte(VgScores[i].Temps) + U"\r\n";
  }
  systeme_.Message(texte, U"Meilleurs scores");
}

}  // namespace sudoku

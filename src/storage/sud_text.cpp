#include "storage/sud_text.h"

#include <algorithm>

#include "storage/temps.h"
#include "text/cp1252.h"

namespace sudoku {
namespace {

constexpr char32_t kSepareScores = U'\0';
constexpr char32_t kTiret = U'-';
constexpr char32_t kTiretRange = U'\x1F';
constexpr char32_t kBourre = U'\x1E';
constexpr TexteVue kFinDeLigne = U"\r\n";

// How many kBourre stand at the beginning of a text.
std::size_t Bourre(TexteVue texte) {
  return std::min(texte.find_first_not_of(kBourre), texte.size());
}

void AjouteRange(Texte& texte, TexteVue morceau) {
  while (!morceau.empty()) {
    const char32_t c = morceau.front();
    morceau.remove_prefix(1);
    if (c != kTiret && c != kTiretRange) {
      texte += c;
      continue;
    }
    const std::size_t bourre = Bourre(morceau);
    texte += kTiretRange;
    texte.append(2 * bourre + (c == kTiret ? 0 : 1), kBourre);
    morceau.remove_prefix(bourre);
  }
}

Texte Derange(TexteVue morceau) {
  Texte texte;
  texte.reserve(morceau.size());
  while (!morceau.empty()) {
    const char32_t c = morceau.front();
    morceau.remove_prefix(1);
    if (c != kTiretRange) {
      texte += c;
      continue;
    }
    const std::size_t bourre = Bourre(morceau);
    texte += bourre % 2 == 0 ? kTiret : kTiretRange;
    texte.append(bourre / 2, kBourre);
    morceau.remove_prefix(bourre);
  }
  return texte;
}

// Cuts the text up to the next `separateur` off the front of `reste`; all of it where there is none.
TexteVue Detache(TexteVue& reste, char32_t separateur) {
  const std::size_t fin = reste.find(separateur);
  const TexteVue morceau = reste.substr(0, fin);
  reste.remove_prefix(fin == TexteVue::npos ? reste.size() : fin + 1);
  return morceau;
}

// Splits "name-content-…" at its dashes. False where there is no dash, and so no content.
bool Partage(TexteVue entree, Texte& nom, TexteVue& contenu) {
  const bool complet = entree.find(kTiret) != TexteVue::npos;
  nom = Derange(Detache(entree, kTiret));
  contenu = Detache(entree, kTiret);
  return complet;
}

std::optional<NumeroErreur> LitPartie(TexteVue ligne, std::vector<ClsPartie>& VgParties) {
  if (VgParties.size() > kEntreesMax) return kIndiceHorsSelection;
  ClsPartie& partie = VgParties.emplace_back();
  TexteVue grille;
  if (!Partage(ligne, partie.Nom, grille)) return kIndiceHorsSelection;
  partie.Grille = Derange(grille);
  return std::nullopt;
}

std::optional<NumeroErreur> LitScore(TexteVue entree, TypScore& score) {
  TexteVue texte;
  if (!Partage(entree, score.Nom, texte)) return kIndiceHorsSelection;
  const auto temps = TexteEnTemps(texte);
  if (!temps) return kTypeIncompatible;
  score.Temps = *temps;
  return std::nullopt;
}

std::optional<NumeroErreur> LitScores(TexteVue ligne, std::optional<std::vector<TypScore>>& VgScores) {
  TexteVue reste = ligne.substr(1);
  // A score that its NUL doesn't close doesn't count.
  const auto nombre = static_cast<std::size_t>(std::ranges::count(reste, kSepareScores));
  if (nombre > kEntreesMax) return kIndiceHorsSelection;
  VgScores.emplace(nombre + 1);
  for (std::size_t i = 1; i <= nombre; ++i) {
    if (const auto erreur = LitScore(Detache(reste, kSepareScores), (*VgScores)[i])) return erreur;
  }
  return std::nullopt;
}

}  // namespace

std::string EcritSud(TexteVue VmValeurs, TexteVue initiale, const std::vector<ClsPartie>& VgParties,
                     const std::vector<TypScore>& VgScores) {
  Texte texte = Texte(VmValeurs) += kFinDeLigne;
  texte += initiale;
  for (std::size_t i = 1; i < VgParties.size(); ++i) {
    texte += kFinDeLigne;
    AjouteRange(texte, VgParties[i].Nom);
    texte += kTiret;
    AjouteRange(texte, VgParties[i].Grille);
  }
  texte += kFinDeLigne;
  texte += kSepareScores;
  for (std::size_t i = 1; i < VgScores.size(); ++i) {
    AjouteRange(texte, VgScores[i].Nom);
    texte += kTiret;
    texte += TempsEnTexte(VgScores[i].Temps);
    texte += kSepareScores;
  }
  return VersFichierTexte(texte);
}

LectureSud LitSud(std::string_view octets) {
  LectureSud lu;
  LignesFichier lignes(octets);
  if (!lignes.Fin()) lu.VmValeurs = lignes.Suivante();
  if (!lignes.Fin()) lu.grille = lignes.Suivante();
  if (!lu.grille) lu.erreur = kFinDeFichier;
  while (!lignes.Fin() && !lu.erreur) {
    const Texte ligne = lignes.Suivante();
    const bool scores = !ligne.empty() && ligne.front() == kSepareScores;
    lu.erreur = scores ? LitScores(ligne, lu.VgScores) : LitPartie(ligne, lu.VgParties);
  }
  return lu;
}

}  // namespace sudoku

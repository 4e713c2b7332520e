#include "storage/sud_text.h"

#include <algorithm>
#include <utility>

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

void AjouteRange(FichierTexte& texte, TexteVue morceau) {
  constexpr char32_t kSignes[] = {kTiret, kTiretRange};
  while (!morceau.empty()) {
    const std::size_t simple = std::min(morceau.find_first_of(kSignes, 0, 2), morceau.size());
    texte += morceau.substr(0, simple);
    morceau.remove_prefix(simple);
    if (morceau.empty()) return;
    const bool tiret = morceau.front() == kTiret;
    morceau.remove_prefix(1);
    const std::size_t bourre = Bourre(morceau);
    morceau.remove_prefix(bourre);
    texte += kTiretRange;
    texte += Texte(2 * bourre + (tiret ? 0 : 1), kBourre);
  }
}

// The other way, in place: what is read is never longer.
void Derange(Texte& texte) {
  std::size_t ecrits = 0;
  for (std::size_t lus = 0; lus < texte.size();) {
    const char32_t c = texte[lus++];
    if (c != kTiretRange) {
      texte[ecrits++] = c;
      continue;
    }
    const std::size_t bourre = Bourre(TexteVue(texte).substr(lus));
    lus += bourre;
    texte[ecrits++] = bourre % 2 == 0 ? kTiret : kTiretRange;
    for (std::size_t i = 0; i < bourre / 2; ++i) texte[ecrits++] = kBourre;
  }
  texte.resize(ecrits);
}

// Cuts the text up to the next `separateur` off the front of `reste`; all of it where there is none.
TexteVue Detache(TexteVue& reste, char32_t separateur) {
  const std::size_t fin = reste.find(separateur);
  const TexteVue morceau = reste.substr(0, fin);
  reste.remove_prefix(fin == TexteVue::npos ? reste.size() : fin + 1);
  return morceau;
}

// Splits "name-content-…" at its dashes and leaves the content in `entree`. False where there is no dash, and
// so no content.
bool Partage(Texte& entree, Texte& nom) {
  const std::size_t tiret = entree.find(kTiret);
  nom = entree.substr(0, tiret);
  Derange(nom);
  entree.erase(0, tiret == Texte::npos ? tiret : tiret + 1);
  entree.resize(std::min(entree.find(kTiret), entree.size()));
  Derange(entree);
  return tiret != Texte::npos;
}

std::optional<NumeroErreur> LitPartie(Texte ligne, std::vector<ClsPartie>& VgParties) {
  if (VgParties.size() > kEntreesMax) return kIndiceHorsSelection;
  ClsPartie& partie = VgParties.emplace_back();
  if (!Partage(ligne, partie.Nom)) return kIndiceHorsSelection;
  partie.Grille = std::move(ligne);
  return std::nullopt;
}

std::optional<NumeroErreur> LitScore(Texte entree, TypScore& score) {
  if (!Partage(entree, score.Nom)) return kIndiceHorsSelection;
  const auto temps = TexteEnTemps(entree);
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
    if (const auto erreur = LitScore(Texte(Detache(reste, kSepareScores)), (*VgScores)[i])) return erreur;
  }
  return std::nullopt;
}

}  // namespace

std::string EcritSud(TexteVue VmValeurs, TexteVue initiale, const std::vector<ClsPartie>& VgParties,
                     const std::vector<TypScore>& VgScores) {
  FichierTexte texte;
  texte += VmValeurs;
  texte += kFinDeLigne;
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
  return std::move(texte).Octets();
}

LectureSud LitSud(std::string_view octets) {
  LectureSud lu;
  LignesFichier lignes(octets);
  if (lignes.Caracteres() > kCaracteresMax) {
    lu.erreur = kAccesFichier;
    return lu;
  }
  if (!lignes.Fin()) lu.VmValeurs = lignes.Suivante();
  if (!lignes.Fin()) lu.grille = lignes.Suivante();
  if (!lu.grille) lu.erreur = kFinDeFichier;
  while (!lignes.Fin() && !lu.erreur) {
    Texte ligne = lignes.Suivante();
    const bool scores = !ligne.empty() && ligne.front() == kSepareScores;
    lu.erreur = scores ? LitScores(ligne, lu.VgScores) : LitPartie(std::move(ligne), lu.VgParties);
  }
  return lu;
}

}  // namespace sudoku

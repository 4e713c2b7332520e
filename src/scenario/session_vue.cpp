#include "scenario/session_vue.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

#include "engine/explications.h"
#include "platform/erreur.h"

namespace sudoku {
namespace {

Texte Hexa6(Couleur couleur) {
  char tampon[16];
  std::snprintf(tampon, sizeof tampon, "%06X", static_cast<unsigned>(couleur));
  return DepuisUtf8(tampon);
}

Texte NeufDecimales(double nombre) {
  char tampon[400];
  std::snprintf(tampon, sizeof tampon, "%.9f", nombre);
  return DepuisUtf8(tampon);
}

// A box's text as `show grid` prints it.
Texte TexteDeGrille(const Texte& texte) {
  if (texte.empty()) return U".";
  const bool lisible = texte.size() == 1 && texte[0] >= 0x20 && texte[0] != 0x7F;
  return lisible ? texte : Cite(texte);
}

// The bytes of a file's line.
std::string Octets(std::string_view ligne) {
  std::string resultat;
  for (const char c : ligne) {
    const auto octet = static_cast<unsigned char>(c);
    if (c == '\\') {
      resultat += "\\\\";
    } else if (octet < 0x20 || octet >= 0x7F) {
      char tampon[8];
      std::snprintf(tampon, sizeof tampon, "\\x%02X", octet);
      resultat += tampon;
    } else {
      resultat += c;
    }
  }
  return resultat;
}

}  // namespace

Texte Paire(TexteVue nom, TexteVue valeur) {
  Texte texte(1, U' ');
  texte += nom;
  texte += U'=';
  texte += valeur;
  return texte;
}
Texte Paire(TexteVue nom, std::int64_t valeur) {
  return Paire(nom, Decimal(valeur));
}

SessionVue::SessionVue(Programme& programme, SystemeSansEcran& systeme, std::ostream& sortie)
    : jeu_(programme.Jeu()), principale_(programme.Principale()), systeme_(systeme), sortie_(sortie) {}

void SessionVue::EcritLigne(TexteVue ligne) {
  sortie_ << VersUtf8(ligne) << '\n';
}

void SessionVue::EcritEnRetrait(TexteVue ligne) {
  sortie_ << "    " << VersUtf8(ligne) << '\n';
}

bool SessionVue::Conforme(const std::vector<Mot>& arguments) {
  if (arguments.empty() || arguments[0].chaine) return false;
  const Texte& quoi = arguments[0].texte;
  if (quoi != U"cell" && quoi != U"file") return arguments.size() == 1;
  if (arguments.size() != 2) return false;
  if (quoi == U"file") return arguments[1].chaine && arguments[1].correct;
  return !arguments[1].chaine && LitNombre(arguments[1].texte).has_value();
}

std::optional<Texte> SessionVue::Montre(const std::vector<Mot>& arguments) {
  const Texte& quoi = arguments[0].texte;
  if (quoi == U"cell") return Cell(*LitNombre(arguments[1].texte));
  if (quoi == U"file") return File(arguments[1].texte);
  constexpr std::pair<TexteVue, void (SessionVue::*)()> kVues[] = {
      {U"state", &SessionVue::State}, {U"grid", &SessionVue::Grid},     {U"etats", &SessionVue::Etats},
      {U"menus", &SessionVue::Menus}, {U"scores", &SessionVue::Scores}, {U"library", &SessionVue::Library},
      {U"boxes", &SessionVue::Boxes},
  };
  for (const auto& [nom, montre] : kVues) {
    if (quoi != nom) continue;
    (this->*montre)();
    return {};
  }
  if (Nom(quoi)) return {};
  return U"pas d'élément " + quoi;
}

void SessionVue::State() {
  EcritLigne(U"VgEtat=" + Decimal(jeu_.VgEtat) + Paire(U"VgSilence", jeu_.VgSilence) +
             Paire(U"VmTaille", jeu_.VmTaille) + Paire(U"VmCase", jeu_.VmCase) +
             Paire(U"VmPartie", jeu_.VmPartie) + Paire(U"VmNom", Cite(jeu_.VmNom)) +
             Paire(U"VmValeurs", Cite(jeu_.VmValeurs)) +
             Paire(U"Tmr", principale_.TrouveMinuterie("Tmr")->Enabled) + Paire(U"VsResolu", jeu_.VsResolu));
}

void SessionVue::Grid() {
  const Plateau& plateau = principale_.plateau;
  Texte ligne;
  for (int i = 1; i <= plateau.Cases(); ++i) {
    ligne += TexteDeGrille(plateau.TxtCase(i).Text);
    if (i % jeu_.VmTaille != 0) continue;
    EcritLigne(ligne);
    ligne.clear();
  }
}

void SessionVue::Etats() {
  Texte ligne;
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) {
    ligne += Decimal(jeu_.VmGrille(i).Etat());
    if (i % jeu_.VmTaille != 0) continue;
    EcritLigne(ligne);
    ligne.clear();
  }
}

void SessionVue::Menus() {
  Texte ligne;
  for (const Menu& menu : principale_.menus) {
    for (const ArticleMenu& article : menu.articles) {
      if (!article.Enabled || !article.Click) continue;
      if (!ligne.empty()) ligne += U" ";
      ligne += DepuisUtf8(article.Name);
    }
  }
  EcritLigne(ligne);
}

void SessionVue::Scores() {
  for (std::size_t i = 1; i < jeu_.VgScores.size(); ++i) {
    const TypScore& score = jeu_.VgScores[i];
    EcritLigne(Decimal(static_cast<std::int64_t>(i)) + U" " + Cite(score.Nom) + U" " +
               NeufDecimales(score.Temps));
  }
}

void SessionVue::Library() {
  for (std::size_t i = 1; i < jeu_.VgParties.size(); ++i) {
    const ClsPartie& partie = jeu_.VgParties[i];
    EcritLigne(Decimal(static_cast<std::int64_t>(i)) + U" " + Cite(partie.Nom) + U" " + Cite(partie.Grille));
  }
}

void SessionVue::Boxes() {
  EcritLigne(U"TxtCase=" + Decimal(principale_.plateau.Cases()) + U" Box=" +
             Decimal(principale_.plateau.Cadres()));
}

std::optional<Texte> SessionVue::Cell(const Nombre& Index) {
  if (Index.valeur < 1 || Index.valeur > principale_.plateau.Cases()) return U"pas de case " + Index.texte;
  const int i = static_cast<int>(Index.valeur);
  const CaseTexte& caseTexte = principale_.plateau.TxtCase(i);
  EcritLigne(U"case " + Index.texte + Paire(U"texte", Cite(caseTexte.Text)) +
             Paire(U"fond", Hexa6(caseTexte.BackColor)) + Paire(U"encre", Hexa6(caseTexte.ForeColor)) +
             Paire(U"verrou", caseTexte.Locked) + Paire(U"tab", caseTexte.TabStop) +
             Paire(U"relief", caseTexte.Appearance) + Paire(U"debut", caseTexte.SelStart) +
             Paire(U"longueur", caseTexte.SelLength));
  const ClsPos cellule = jeu_.VmGrille(i);
  EcritLigne(U"  valeur=" + Cite(cellule.ValeurSaisie()) + Paire(U"etat", cellule.Etat()) +
             Paire(U"possible", Cite(cellule.Possible())) + Paire(U"sure", Cite(cellule.SolutionSure())) +
             Paire(U"poss", Cite(cellule.SolutionPoss())));
  for (const Texte& phrase : Phrases(jeu_.VmGrille, i)) EcritEnRetrait(phrase);
  return {};
}

std::optional<Texte> SessionVue::File(TexteVue chemin) {
  const Texte introuvable = U"fichier introuvable";
  if (!systeme_.LesFichiers().EstFichier(chemin)) return introuvable;
  try {
    const std::string contenu = systeme_.LesFichiers().Lit(chemin);
    for (std::size_t debut = 0; debut < contenu.size();) {
      const std::size_t fin = std::min(contenu.find('\n', debut), contenu.size());
      sortie_ << Octets(std::string_view(contenu).substr(debut, fin - debut)) << '\n';
      debut = fin + 1;
    }
    return {};
  } catch (const Erreur&) {
    return introuvable;
  }
}

}  // namespace sudoku

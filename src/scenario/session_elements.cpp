// `show NAME`: one view element and its properties.

#include <algorithm>
#include <string>
#include <string_view>

#include "scenario/session_vue.h"

namespace sudoku {
namespace {

// What `show NAME` prints of an element: C Caption, T Text, V Value, G Left Top Width Height, W Visible, E
// Enabled. Nothing: the element can't be shown.
std::string_view Proprietes(const Element& e) {
  if (e.Name == "LblChrono") return "CGW";    // comes and goes
  if (e.Name == "lblDisclaimer") return "G";  // its text is free
  switch (e.genre) {
    case Genre::kEtiquette:
    case Genre::kCadre:
    case Genre::kBouton:
      return "CG";
    case Genre::kCaseACocher:
      return "CVG";
    case Genre::kTexte:
      return "TGE";
    case Genre::kImage:
      return "G";
    default:
      return {};
  }
}

Texte Place(Twips Left, Twips Top, Twips Width, Twips Height) {
  return Paire(U"Left", Left) + Paire(U"Top", Top) + Paire(U"Width", Width) + Paire(U"Height", Height);
}

Texte ProprieteElement(char lettre, const Element& e) {
  switch (lettre) {
    case 'C':
      return Paire(U"Caption", Cite(e.Caption));
    case 'T':
      return Paire(U"Text", Cite(e.Text));
    case 'V':
      return Paire(U"Value", e.Value);
    case 'W':
      return Paire(U"Visible", e.Visible);
    case 'E':
      return Paire(U"Enabled", e.Enabled);
    default:
      return Place(e.Left, e.Top, e.Width, e.Height);
  }
}

// "TxtCase(12)": the number in parentheses behind `tableau`, if `nom` is written so.
std::optional<int> IndiceDe(TexteVue nom, TexteVue tableau) {
  if (!nom.starts_with(tableau) || !nom.ends_with(U')')) return std::nullopt;
  nom.remove_prefix(tableau.size());
  nom.remove_suffix(1);
  const auto nombre = LitNombre(nom);
  if (!nombre || nombre->texte != nom || nombre->valeur < 0 || nombre->valeur > 32767) return std::nullopt;
  return static_cast<int>(nombre->valeur);
}

}  // namespace

bool SessionVue::CaseOuCadre(TexteVue nom) {
  const Plateau& plateau = principale_.plateau;
  if (const auto i = IndiceDe(nom, U"TxtCase("); i && *i <= plateau.Cases()) {
    const CaseTexte& b = plateau.TxtCase(*i);
    EcritLigne(Texte(nom) + Paire(U"Text", Cite(b.Text)) + Place(b.Left, b.Top, b.Width, b.Height) +
               Paire(U"Visible", b.Visible));
    return true;
  }
  if (const auto i = IndiceDe(nom, U"Box("); i && *i <= plateau.Cadres()) {
    const CadreCarre& b = plateau.Box(*i);
    const Texte place = *i == 0 ? Texte() : Place(b.Left, b.Top, b.Width, b.Height);
    EcritLigne(Texte(nom) + place + Paire(U"Visible", b.Visible));
    return true;
  }
  return false;
}

bool SessionVue::ArticleOuMenu(std::string_view nom) {
  for (const Menu& menu : principale_.menus) {
    if (menu.Name == nom) {
      EcritLigne(DepuisUtf8(nom) + Paire(U"Caption", Cite(menu.Caption)));
      return true;
    }
  }
  const ArticleMenu* article = principale_.TrouveArticle(nom);
  if (article == nullptr) return false;
  EcritLigne(DepuisUtf8(nom) + Paire(U"Caption", Cite(article->Caption)) +
             (article->Click ? Paire(U"Enabled", article->Enabled) : Texte()));
  return true;
}

// An element of `fenetre`, a timer or the window itself, if it has properties to print.
bool SessionVue::DansFenetre(Fenetre& fenetre, std::string_view nom) {
  Texte ligne = DepuisUtf8(nom);
  if (fenetre.Name == nom) {
    ligne += Paire(U"Caption", Cite(fenetre.Caption)) + Paire(U"Width", fenetre.Width) +
             Paire(U"Height", fenetre.Height);
    if (&fenetre != systeme_.FenetreModale()) {
      ligne += Paire(U"Visible", fenetre.Visible) + Paire(U"TopMost", fenetre.TopMost);
    }
  } else if (const Minuterie* minuterie = fenetre.TrouveMinuterie(nom)) {
    ligne += Paire(U"Enabled", minuterie->Enabled);
  } else {
    const Element* element = fenetre.Trouve(nom);
    if (element == nullptr) return false;
    if (element->genre == Genre::kListe || element->genre == Genre::kChampListe) {
      EcritListe(*element);
      return true;
    }
    const std::string_view lettres = Proprietes(*element);
    if (lettres.empty()) return false;
    for (const char lettre : lettres) ligne += ProprieteElement(lettre, *element);
  }
  EcritLigne(ligne);
  return true;
}

bool SessionVue::Nom(TexteVue nom) {
  const std::string octets = VersUtf8(nom);
  if (CaseOuCadre(nom) || ArticleOuMenu(octets)) return true;
  Fenetre* modale = systeme_.FenetreModale();
  if (modale != nullptr && DansFenetre(*modale, octets)) return true;
  return std::ranges::any_of(systeme_.Fenetres(),
                             [&](Fenetre* fenetre) { return DansFenetre(*fenetre, octets); });
}

void SessionVue::EcritListe(const Element& liste) {
  const Texte texte = liste.genre == Genre::kChampListe ? Paire(U"Text", Cite(liste.Text)) : Texte();
  EcritLigne(DepuisUtf8(liste.Name) + Paire(U"Visible", liste.Visible) +
             Paire(U"ListIndex", liste.ListIndex) + texte);
  for (const Texte& item : liste.items) EcritEnRetrait(Cite(item));
}

}  // namespace sudoku

// `show NAME`: one view element and its properties.

#include <algorithm>
#include <string>
#include <string_view>

#include "scenario/session_vue.h"

namespace sudoku {
namespace {

// What `show NAME` prints of an element: C Caption, T Text, V Value, G Left Top Width Height, S Width Height,
// W Visible, E Enabled, M TopMost.
struct Proprietes {
  std::string_view nom;
  std::string_view lettres;
};

constexpr Proprietes kProprietes[] = {
    {"FRMSudoku", "CSWM"},
    {"FRMHelp", "CSWM"},
    {"FRMParties", "CS"},
    {"FRMNRVAbout", "CS"},
    {"LblInfos", "CG"},
    {"LblChrono", "CGW"},
    {"Tmr", "E"},
    {"FrmGeneral", "CG"},
    {"FrmCase", "CG"},
    {"BtViewSolution", "CG"},
    {"ChkLightSur", "CVG"},
    {"ChkLightPoss", "CVG"},
    {"ChkForeBlue", "CVG"},
    {"ChkForeRed", "CVG"},
    {"ChkListPoss", "CVG"},
    {"ChkRep", "CVG"},
    {"ChkTips", "CVG"},
    {"TxtLightSur", "TGE"},
    {"TxtLightPoss", "TGE"},
    {"TxtListPoss", "TGE"},
    {"TxtRep", "TGE"},
    {"TxtTips", "TGE"},
    {"BtOK", "CG"},
    {"BtDel", "CG"},
    {"BtSysInfo", "CG"},
    {"lblTitle", "CG"},
    {"lblVersion", "CG"},
    {"lblDescription", "CG"},
    {"lblDisclaimer", "G"},
    {"PicIco", "G"},
};

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

Texte ProprieteFenetre(char lettre, const Fenetre& f) {
  switch (lettre) {
    case 'C':
      return Paire(U"Caption", Cite(f.Caption));
    case 'W':
      return Paire(U"Visible", f.Visible);
    case 'M':
      return Paire(U"TopMost", f.TopMost);
    default:
      return Paire(U"Width", f.Width) + Paire(U"Height", f.Height);
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

bool SessionVue::BoiteDuPlateau(TexteVue nom) {
  const Plateau& plateau = principale_.plateau;
  if (const auto i = IndiceDe(nom, U"TxtCase("); i && *i <= plateau.Cases()) {
    const CaseTexte& b = plateau.TxtCase(*i);
    Ligne(Texte(nom) + Paire(U"Text", Cite(b.Text)) + Place(b.Left, b.Top, b.Width, b.Height) +
          Paire(U"Visible", b.Visible));
    return true;
  }
  if (const auto i = IndiceDe(nom, U"Box("); i && *i <= plateau.Cadres()) {
    const CadreCarre& b = plateau.Box(*i);
    const Texte place = *i == 0 ? Texte() : Place(b.Left, b.Top, b.Width, b.Height);
    Ligne(Texte(nom) + place + Paire(U"Visible", b.Visible));
    return true;
  }
  return false;
}

bool SessionVue::ArticleOuMenu(std::string_view nom) {
  for (const Menu& menu : principale_.menus) {
    if (menu.Name == nom) {
      Ligne(DepuisUtf8(nom) + Paire(U"Caption", Cite(menu.Caption)));
      return true;
    }
  }
  const ArticleMenu* article = principale_.TrouveArticle(nom);
  if (article == nullptr) return false;
  Ligne(DepuisUtf8(nom) + Paire(U"Caption", Cite(article->Caption)) +
        (article->Click ? Paire(U"Enabled", article->Enabled) : Texte()));
  return true;
}

// An element of `fenetre`, or the window itself, that has properties to print.
bool SessionVue::DansFenetre(Fenetre& fenetre, std::string_view nom) {
  Element* element = fenetre.Trouve(nom);
  if (element != nullptr && (element->genre == Genre::kListe || element->genre == Genre::kChampListe)) {
    Liste(*element);
    return true;
  }
  const auto place = std::find_if(std::begin(kProprietes), std::end(kProprietes),
                                  [&](const Proprietes& p) { return p.nom == nom; });
  if (place == std::end(kProprietes)) return false;
  Texte ligne = DepuisUtf8(nom);
  const Minuterie* minuterie = fenetre.TrouveMinuterie(nom);
  if (element == nullptr && minuterie == nullptr && fenetre.Name != nom) return false;
  for (const char lettre : place->lettres) {
    if (element != nullptr) {
      ligne += ProprieteElement(lettre, *element);
    } else {
      ligne +=
          minuterie != nullptr ? Paire(U"Enabled", minuterie->Enabled) : ProprieteFenetre(lettre, fenetre);
    }
  }
  Ligne(ligne);
  return true;
}

bool SessionVue::Nom(TexteVue nom) {
  const std::string octets = VersUtf8(nom);
  if (BoiteDuPlateau(nom) || ArticleOuMenu(octets)) return true;
  Fenetre* modale = systeme_.FenetreModale();
  if (modale != nullptr && DansFenetre(*modale, octets)) return true;
  return std::ranges::any_of(systeme_.Fenetres(),
                             [&](Fenetre* fenetre) { return DansFenetre(*fenetre, octets); });
}

void SessionVue::Liste(const Element& liste) {
  const Texte texte = liste.genre == Genre::kChampListe ? Paire(U"Text", Cite(liste.Text)) : Texte();
  Ligne(DepuisUtf8(liste.Name) + Paire(U"Visible", liste.Visible) + Paire(U"ListIndex", liste.ListIndex) +
        texte);
  for (const Texte& item : liste.items) Retrait(Cite(item));
}

}  // namespace sudoku

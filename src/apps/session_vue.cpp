#include "apps/session_vue.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

#include "engine/explications.h"
#include "platform/erreur.h"

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

SessionVue::SessionVue(Programme& programme, SystemeSansEcran& systeme, std::ostream& sortie)
    : jeu_(programme.Principale().Jeu()),
      principale_(programme.Principale().LaFenetre()),
      systeme_(systeme),
      sortie_(sortie) {}

void SessionVue::Ligne(TexteVue ligne) {
  sortie_ << VersUtf8(ligne) << '\n';
}

void SessionVue::Retrait(TexteVue ligne) {
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
  Ligne(U"VgEtat=" + Decimal(jeu_.VgEtat) + Paire(U"VgSilence", jeu_.VgSilence) +
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
    Ligne(ligne);
    ligne.clear();
  }
}

void SessionVue::Etats() {
  Texte ligne;
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) {
    ligne += Decimal(jeu_.VmGrille(i).Etat());
    if (i % jeu_.VmTaille != 0) continue;
    Ligne(ligne);
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
  Ligne(ligne);
}

void SessionVue::Scores() {
  for (std::size_t i = 1; i < jeu_.VgScores.size(); ++i) {
    const TypScore& score = jeu_.VgScores[i];
    Ligne(Decimal(static_cast<std::int64_t>(i)) + U" " + Cite(score.Nom) + U" " + NeufDecimales(score.Temps));
  }
}

void SessionVue::Library() {
  for (std::size_t i = 1; i < jeu_.VgParties.size(); ++i) {
    const ClsPartie& partie = jeu_.VgParties[i];
    Ligne(Decimal(static_cast<std::int64_t>(i)) + U" " + Cite(partie.Nom) + U" " + Cite(partie.Grille));
  }
}

void SessionVue::Boxes() {
  Ligne(U"TxtCase=" + Decimal(principale_.plateau.Cases()) + U" Box=" +
        Decimal(principale_.plateau.Cadres()));
}

std::optional<Texte> SessionVue::Cell(const Nombre& Index) {
  if (Index.valeur < 1 || Index.valeur > principale_.plateau.Cases()) return U"pas de case " + Index.texte;
  const int i = static_cast<int>(Index.valeur);
  const CaseTexte& boite = principale_.plateau.TxtCase(i);
  Ligne(U"case " + Index.texte + Paire(U"texte", Cite(boite.Text)) + Paire(U"fond", Hexa6(boite.BackColor)) +
        Paire(U"encre", Hexa6(boite.ForeColor)) + Paire(U"verrou", boite.Locked) +
        Paire(U"tab", boite.TabStop) + Paire(U"relief", boite.Appearance) + Paire(U"debut", boite.SelStart) +
        Paire(U"longueur", boite.SelLength));
  const ClsPos cellule = jeu_.VmGrille(i);
  Ligne(U"  valeur=" + Cite(cellule.ValeurSaisie()) + Paire(U"etat", cellule.Etat()) +
        Paire(U"possible", Cite(cellule.Possible())) + Paire(U"sure", Cite(cellule.SolutionSure())) +
        Paire(U"poss", Cite(cellule.SolutionPoss())));
  for (const Texte& phrase : Phrases(jeu_.VmGrille, i)) Retrait(phrase);
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
  for (Fenetre* fenetre : systeme_.Fenetres()) {
    if (DansFenetre(*fenetre, octets)) return true;
  }
  return false;
}

void SessionVue::Liste(const Element& liste) {
  const Texte texte = liste.genre == Genre::kChampListe ? Paire(U"Text", Cite(liste.Text)) : Texte();
  Ligne(DepuisUtf8(liste.Name) + Paire(U"Visible", liste.Visible) + Paire(U"ListIndex", liste.ListIndex) +
        texte);
  for (const Texte& item : liste.items) Retrait(Cite(item));
}

}  // namespace sudoku

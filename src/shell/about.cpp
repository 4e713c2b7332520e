#include "shell/about.h"

#include <charconv>
#include <optional>

#include "play/window_shell.h"

namespace sudoku {
namespace {

constexpr std::uint32_t kMachineLocale = 0x80000002;
constexpr std::uint32_t kTypeTexte = 1;
constexpr std::uint32_t kTypeNombre = 4;
constexpr std::size_t kTampon = 1024;  // a longer value can't be read

constexpr TexteVue kAvertissement =
    U"Entrez une grille, jouez contre la montre, demandez pourquoi : chaque déduction est expliquée en "
    U"français.\r\n\r\nCe logiciel est fourni tel quel, sans aucune garantie.";

Police MsSansSerif(double taille, bool gras = false) {
  return {.Nom = "MS Sans Serif", .Taille = taille, .Gras = gras};
}

Element Etiquette(const char* nom, TexteVue texte, int ordre, Twips haut, Twips hauteur, Police police) {
  return {.Name = nom,
          .Caption = Texte(texte),
          .Left = 1050,
          .Top = haut,
          .Width = 3885,
          .Height = hauteur,
          .TabIndex = ordre,
          .ForeColor = kNoir,
          .police = police};
}

// The two lines make an engraved rule.
Element Trait(const char* nom, Twips gauche, Twips haut, Couleur couleur, int epaisseur) {
  constexpr Twips kDroite = 5654;
  return {.genre = Genre::kTrait,
          .Name = nom,
          .Left = gauche,
          .Top = haut,
          .Width = kDroite - gauche,
          .ForeColor = couleur,
          .BorderWidth = epaisseur};
}

std::vector<Element> Elements() {
  return {{.genre = Genre::kImage,
           .Name = "PicIco",
           .Left = 240,
           .Top = 240,
           .Width = 540,
           .Height = 540,
           .TabIndex = 1,
           .TabStop = false},
          Etiquette("lblTitle", U"Sudoku", 5, 240, 480, MsSansSerif(12, true)),
          Etiquette("lblVersion", U"v" + DepuisUtf8(SUDOKU_VERSION), 6, 780, 225, MsSansSerif(9.75)),
          Etiquette("lblDescription", U"Solveur de Sudoku", 3, 1125, 570, MsSansSerif(9.75)),
          Trait("Line1(1)", 90, 1845, 0x808080, 1),
          Trait("Line1(0)", 105, 1860, kBlanc, 2),
          {.Name = "lblDisclaimer",
           .Caption = Texte(kAvertissement),
           .Left = 255,
           .Top = 2025,
           .Width = 3870,
           .Height = 1785,
           .TabIndex = 4,
           .ForeColor = kNoir,
           .police = MsSansSerif(9.75)},
          {.genre = Genre::kBouton,
           .Name = "BtOK",
           .Caption = U"OK",
           .Left = 4245,
           .Top = 2265,
           .Width = 1260,
           .Height = 345,
           .TabIndex = 0,
           .Default = true,
           .Cancel = true},
          {.genre = Genre::kBouton,
           .Name = "BtSysInfo",
           .Caption = U"&Infos système...",
           .Left = 4260,
           .Top = 2715,
           .Width = 1245,
           .Height = 345,
           .TabIndex = 2}};
}

// The number whose bytes are these, the lowest first, each written in hexadecimal without leading zeros after
// what `chiffres` holds. Nothing where those digits make no 32-bit number.
std::optional<Texte> Nombre(TexteVue chiffres, TexteVue octets) {
  std::string hexa = VersUtf8(chiffres);
  for (auto octet = octets.rbegin(); octet != octets.rend(); ++octet) {
    char tampon[8];
    const auto fin = std::to_chars(tampon, std::end(tampon), static_cast<std::uint32_t>(*octet), 16);
    hexa.append(tampon, fin.ptr);
  }
  std::uint32_t nombre = 0;
  const char* const bout = hexa.data() + hexa.size();
  const auto lu = std::from_chars(hexa.data(), bout, nombre, 16);
  if (lu.ec != std::errc() || lu.ptr != bout) return std::nullopt;
  return Decimal(nombre);
}

// The path of the tool; nothing where the registry doesn't tell, or its folder doesn't hold it.
std::optional<Texte> CheminSysInfo(Systeme& systeme) {
  Texte chemin;
  if (GetKeyValue(systeme, kMachineLocale, U"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", U"PATH", chemin)) {
    return chemin;
  }
  if (GetKeyValue(systeme, kMachineLocale, U"SOFTWARE\\Microsoft\\Shared Tools Location", U"MSINFO",
                  chemin)) {
    chemin += U"\\MSINFO32.EXE";
    if (systeme.LesFichiers().EstFichier(chemin)) return chemin;
  }
  return std::nullopt;
}

}  // namespace

bool GetKeyValue(Systeme& systeme, std::uint32_t KeyRoot, TexteVue KeyName, TexteVue SubKeyRef,
                 Texte& KeyVal) {
  const auto valeur = systeme.Registre(KeyRoot, KeyName, SubKeyRef);
  std::optional<Texte> lue;
  if (valeur && valeur->donnees.size() <= kTampon) {
    TexteVue donnees = valeur->donnees;
    if (donnees.ends_with(U'\0')) donnees.remove_suffix(1);
    lue = KeyVal;
    if (valeur->type == kTypeTexte) lue = Texte(donnees);
    if (valeur->type == kTypeNombre) lue = Nombre(KeyVal, donnees);
  }
  KeyVal = lue.value_or(Texte());
  return lue.has_value();
}

void StartSysInfo(Systeme& systeme) {
  const auto chemin = CheminSysInfo(systeme);
  if (chemin && systeme.Lance(*chemin)) return;
  systeme.Message(U"Les informations système ne sont pas disponibles actuellement");
}

Fenetre FRMNRVAbout::Table(Fenetre& proprietaire) {
  return {.Name = "FRMNRVAbout",
          .Caption = U"À propos de Sudoku",
          .Width = 5730,
          .Height = 3825,
          .Dialogue = true,
          .CentreSurProprietaire = true,
          .proprietaire = &proprietaire,
          .elements = Elements()};
}

FRMNRVAbout::FRMNRVAbout(Systeme& systeme, Fenetre& proprietaire)
    : systeme_(systeme), fenetre_(Table(proprietaire)) {
  fenetre_.Trouve("BtOK")->Click = [this] { fenetre_.Ferme(); };
  fenetre_.Trouve("BtSysInfo")->Click = [this] { StartSysInfo(systeme_); };
}

void AProposDuJeu::MnuAbout_Click() {
  AlwaysOnTop(principale_, false);
  FRMNRVAbout(systeme_, principale_).Montre();
  AlwaysOnTop(principale_, true);
}

}  // namespace sudoku

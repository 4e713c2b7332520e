#include "storage/frm_parties.h"

#include <limits>

#include "platform/rapport.h"

namespace sudoku {
namespace {

std::int16_t NumeroDePartie(std::size_t numero) {
  if (numero > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
    throw Erreur(kIndiceHorsSelection);
  }
  return static_cast<std::int16_t>(numero);
}

}  // namespace

Fenetre FRMParties::Table(Fenetre& proprietaire) {
  return {.Name = "FRMParties",
          .Caption = U"Nom de la grille ?",
          .Width = 2580,
          .Height = 2355,
          .ControlBox = false,
          .CentreSurProprietaire = true,
          .proprietaire = &proprietaire,
          .elements = {{.genre = Genre::kChampListe,
                        .Name = "LstSave",
                        .Left = 120,
                        .Top = 120,
                        .Width = 2295,
                        .Height = 1740,
                        .TabIndex = 0,
                        .Visible = false},
                       {.genre = Genre::kBouton,
                        .Name = "BtOK",
                        .Caption = U"OK",
                        .Left = 120,
                        .Top = 1920,
                        .Width = 1215,
                        .Height = 375,
                        .TabIndex = 1,
                        .Default = true},
                       {.genre = Genre::kListe,
                        .Name = "LstLoad",
                        .Left = 120,
                        .Top = 120,
                        .Width = 2295,
                        .Height = 1620,
                        .TabIndex = 2,
                        .Visible = false},
                       {.genre = Genre::kBouton,
                        .Name = "BtDel",
                        .Caption = U"Supprimer",
                        .Left = 1320,
                        .Top = 1920,
                        .Width = 1095,
                        .Height = 375,
                        .TabIndex = 3}}};
}

FRMParties::FRMParties(GameState& jeu, Systeme& systeme, Fenetre& proprietaire)
    : jeu_(jeu),
      systeme_(systeme),
      fenetre_(Table(proprietaire)),
      LstLoad_(Trouve("LstLoad")),
      LstSave_(Trouve("LstSave")) {
  Trouve("BtOK").Click = [this] { Valide(); };
  LstLoad_.DblClick = [this] { Valide(); };
  Trouve("BtDel").Click = [this] { DelPartie(); };
}

void FRMParties::Montre() {
  Init();
  systeme_.MontreModale(fenetre_);
}

bool FRMParties::Charge() const {
  return jeu_.VgEtat == kChargePartie;
}

void FRMParties::Init() {
  LstLoad_.Clear();
  LstSave_.Clear();
  LstLoad_.AddItem(U"(Grille vierge)");
  const auto& VgParties = jeu_.VgParties;
  for (std::size_t i = 1; i < VgParties.size(); ++i) {
    LstLoad_.AddItem(VgParties[i].Nom);
    LstSave_.AddItem(VgParties[i].Nom);
  }
  LstLoad_.Visible = Charge();
  LstSave_.Visible = jeu_.VgEtat == kSauvePartie;
}

void FRMParties::Valide() {
  Rapport(systeme_, U"FRMParties.Valide", [this] {
    const int position = Charge() ? LstLoad_.ListIndex : LstSave_.ListIndex;
    if (!Charge()) {
      SauveSous(position);
    } else if (position < 0) {
      jeu_.VmPartie = -1;
    } else {
      jeu_.VmPartie = NumeroDePartie(static_cast<std::size_t>(position));
    }
    fenetre_.Ferme();
  });
}

void FRMParties::SauveSous(int position) {
  if (position >= 0) {
    jeu_.VmPartie = NumeroDePartie(static_cast<std::size_t>(position) + 1);
  } else {
    jeu_.VmPartie = NumeroDePartie(jeu_.VgParties.size());
    jeu_.VgParties.push_back({.Nom = LstSave_.Text, .Grille = {}});
  }
}

void FRMParties::DelPartie() {
  const Element& liste = Charge() ? LstLoad_ : LstSave_;
  const int n = Charge() ? liste.ListIndex : liste.ListIndex + 1;
  if (n <= 0) {
    systeme_.Message(U"Grille invalide, suppression impossible");
    return;
  }
  if (!systeme_.Question(U"Etes-vous sûr de vouloir supprimer la partie " + liste.Text + U" ?")) return;
  auto& VgParties = jeu_.VgParties;
  VgParties.erase(VgParties.begin() + n);
  Init();
}

}  // namespace sudoku

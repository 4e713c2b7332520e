#include "assistant/frm_help.h"

#include "engine/explications.h"

namespace sudoku {
namespace {

constexpr int kEspace = 32;

Element Cadre(const char* nom, TexteVue caption, Twips Top, Twips Height, int tab) {
  return {.genre = Genre::kCadre,
          .Name = nom,
          .Caption = Texte(caption),
          .Left = 120,
          .Top = Top,
          .Width = 4095,
          .Height = Height,
          .TabIndex = tab,
          .police = {.Gras = true, .Italique = true}};
}

struct Place {
  Twips Left, Top, Width, Height;
};

Element CaseACocher(const char* nom, TexteVue caption, Place p, int tab, Couleur encre = kCouleurSysteme) {
  return {.genre = Genre::kCaseACocher,
          .Name = nom,
          .Caption = Texte(caption),
          .Left = p.Left,
          .Top = p.Top,
          .Width = p.Width,
          .Height = p.Height,
          .TabIndex = tab,
          .ForeColor = encre};
}

// The text boxes only display, TxtRep what the option ChkRep asks for, and so on.
Element Afficheur(const char* nom, Place p, int tab, Couleur fond = kCouleurSysteme) {
  return {.genre = Genre::kTexte,
          .Name = nom,
          .Left = p.Left,
          .Top = p.Top,
          .Width = p.Width,
          .Height = p.Height,
          .TabIndex = tab,
          .Enabled = false,
          .Libelle = std::string("Chk") + (nom + 3),
          .BackColor = fond};
}

Element Conseils() {
  Element tips = Afficheur("TxtTips", {120, 1440, 3855, 1335}, 6);
  tips.Parent = "FrmCase";
  tips.MultiLine = true;
  return tips;
}

std::vector<Element> Elements() {
  return {
      Cadre("FrmGeneral", U"Informations générales sur le jeu", 120, 1935, 12),
      CaseACocher("ChkLightSur", U"Visualiser les cases certaines", {240, 360, 2415, 495}, 0),
      Afficheur("TxtLightSur", {2760, 480, 375, 285}, 7, kVert),
      CaseACocher("ChkLightPoss", U"Visualiser les cases possibles", {240, 840, 2535, 375}, 1),
      Afficheur("TxtLightPoss", {2760, 840, 375, 285}, 8, kCyan),
      CaseACocher("ChkForeBlue", U"Saisies hypothétiques en bleu", {240, 1200, 2535, 375}, 2, kBleu),
      CaseACocher("ChkForeRed", U"Saisies erronées en rouge", {240, 1560, 2415, 375}, 3, kRouge),
      Cadre("FrmCase", U"Informations sur la case sélectionnée", 2160, 2895, 11),
      CaseACocher("ChkListPoss", U"Valeurs autorisées :", {240, 2520, 1815, 255}, 4),
      Afficheur("TxtListPoss", {2160, 2520, 1935, 285}, 9),
      CaseACocher("ChkRep", U"Réponse :", {240, 2880, 1815, 375}, 5),
      Afficheur("TxtRep", {2160, 2880, 270, 285}, 10),
      CaseACocher("ChkTips", U"Tips", {240, 3240, 735, 375}, 13),
      Conseils(),
      {.genre = Genre::kBouton,
       .Name = "BtViewSolution",
       .Caption = U"Visualiser la solution",
       .Left = 120,
       .Top = 5040,
       .Width = 4095,
       .Height = 375,
       .TabIndex = 14},
  };
}

}  // namespace

FRMHelp::FRMHelp(Plateau& plateau)
    : plateau_(plateau),
      fenetre_({.Name = "FRMHelp",
                .Caption = U"Assistant Sudoku",
                .Width = 4335,
                .Height = 5475,
                .elements = Elements()}),
      ChkLightSur_(Trouve("ChkLightSur")),
      ChkLightPoss_(Trouve("ChkLightPoss")),
      ChkForeBlue_(Trouve("ChkForeBlue")),
      ChkForeRed_(Trouve("ChkForeRed")),
      ChkListPoss_(Trouve("ChkListPoss")),
      ChkRep_(Trouve("ChkRep")),
      ChkTips_(Trouve("ChkTips")),
      FrmCase_(Trouve("FrmCase")),
      TxtListPoss_(Trouve("TxtListPoss")),
      TxtRep_(Trouve("TxtRep")),
      TxtTips_(Trouve("TxtTips")) {}

void FRMHelp::Branche(GameState& jeu, AutoDriver& pilote, BoardDisplay& affichage) {
  for (Element* option :
       {&ChkLightSur_, &ChkLightPoss_, &ChkForeBlue_, &ChkForeRed_, &ChkListPoss_, &ChkRep_, &ChkTips_}) {
    option->Click = [&affichage] { affichage.Affiche(); };
  }
  const auto debutApercu = [&jeu, &pilote] {
    jeu.VgSilence = true;
    pilote.JeuAuto(false, false);
  };
  const auto finApercu = [&jeu, &affichage] {
    jeu.VgSilence = false;
    affichage.Affiche();
  };
  Element& BtViewSolution = Trouve("BtViewSolution");
  BtViewSolution.MouseDown = debutApercu;
  BtViewSolution.MouseUp = finApercu;
  BtViewSolution.KeyDown = [debutApercu](int KeyCode) {
    if (KeyCode == kEspace) debutApercu();
  };
  BtViewSolution.KeyUp = [finApercu](int KeyCode) {
    if (KeyCode == kEspace) finApercu();
  };
  fenetre_.QueryUnload = [this, &affichage](int UnloadMode) {
    if (UnloadMode != kFermeParUtilisateur) return false;
    fenetre_.Visible = false;
    affichage.Affiche();
    affichage.SetMenus();
    return true;
  };
}

void FRMHelp::Infos(const Grille& VpGrille, int VpPos, bool VpInit) {
  if (!VpInit && VmPos != 0) Surligne();
  TxtListPoss_.Text.clear();
  TxtRep_.Text.clear();
  TxtTips_.Text.clear();
  FrmCase_.Caption = U"Informations sur la case " + Decimal(VpPos);
  VmPos = 0;
  const ClsPos cellule = VpGrille(VpPos);
  if (cellule.Etat() == kDonnee && !cellule.ValeurSaisie().empty()) return;
  if (ChkListPoss_.Value != 0) TxtListPoss_.Text = AvecTirets(cellule.Possible());
  if (ChkRep_.Value != 0) {
    TxtRep_.Text = cellule.SolutionSure().empty() ? cellule.SolutionPoss() : cellule.SolutionSure();
  }
  if (ChkTips_.Value != 0) TxtTips_.Text = Explications(VpGrille, VpPos);
  VmPos = VpPos;
  Surligne();
}

// Exchanges the colours of the box: puts the highlight there, or takes it away.
void FRMHelp::Surligne() {
  const CaseTexte& caseTexte = plateau_.TxtCase(VmPos);
  plateau_.Couleurs(VmPos, caseTexte.ForeColor, caseTexte.BackColor);
}

}  // namespace sudoku

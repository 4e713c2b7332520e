#include "play/board_display.h"

#include "platform/rapport.h"

namespace sudoku {
namespace {

constexpr Twips kEcart = 15;  // between two cells, and from a cell to its block's frame

struct Couleurs {
  Couleur fond = kBlanc;
  Couleur encre = kNoir;
};

// In the order of Marque.
constexpr Couleurs kCouleurs[] = {
    {}, {.fond = kGris}, {.fond = kVert}, {.fond = kCyan}, {.encre = kBleu}, {.encre = kRouge},
};

// The name of a file without folder and without its extension of three letters.
TexteVue NomSansExtension(TexteVue chemin) {
  const std::size_t barre = chemin.find_last_of(U"\\/");
  const TexteVue nom = chemin.substr(barre == TexteVue::npos ? 0 : barre + 1);
  if (nom.size() < 4) throw Erreur(kArgumentIncorrect);
  return nom.substr(0, nom.size() - 4);
}

}  // namespace

BoardDisplay::BoardDisplay(GameState& jeu, Fenetre& fenetre, Systeme& systeme, Assistant& assistant)
    : jeu_(jeu),
      plateau_(fenetre.plateau),
      fenetre_(fenetre),
      systeme_(systeme),
      assistant_(assistant),
      LblInfos_(*fenetre.Trouve("LblInfos")),
      LblChrono_(*fenetre.Trouve("LblChrono")),
      menus_(fenetre) {}

void BoardDisplay::Affiche() {
  const Grille& VlGrille = jeu_.VgSilence ? jeu_.VmGrilleEtat : jeu_.VmGrille;
  const std::int32_t VlEtat = jeu_.VgEtat;
  const bool visible = assistant_.LaFenetre().Visible;
  jeu_.VgEtat = kAffichage;
  if (VlGrille.Borne() > 0) {
    const Marques marques = visible ? Marques{assistant_.ChkLightSur(), assistant_.ChkLightPoss(),
                                              assistant_.ChkForeBlue(), assistant_.ChkForeRed()}
                                    : Marques{};
    AfficheCases(VlGrille, VlEtat == kSaisieGrille, marques);
    plateau_.Reecrit();
  }
  jeu_.VgEtat = VlEtat;
  const int VmCase = jeu_.VmCase;
  if (visible && VmCase != 0 && VmCase <= VlGrille.Borne()) assistant_.Infos(VlGrille, VmCase, true);
}

// Runs after every keystroke over every cell: a cell that shows what it should costs a few comparisons.
void BoardDisplay::AfficheCases(const Grille& VlGrille, bool modifiable, const Marques& marques) {
  const Bloc& bloc = VlGrille.Donnees();
  for (int i = 1; i <= VlGrille.Borne(); ++i) {
    plateau_.Text(i, bloc.alphabet->TexteDe(bloc.saisie[Rang(i)]));
    const Marque marque = MarqueDe(bloc, i, marques);
    if (marque == Marque::kDonnee) plateau_.Acces(i, !modifiable, modifiable);
    const Couleurs& couleurs = kCouleurs[static_cast<std::size_t>(marque)];
    plateau_.Signe(i, marque);
    plateau_.Couleurs(i, couleurs.fond, couleurs.encre);
  }
}

Marque BoardDisplay::MarqueDe(const Bloc& bloc, int i, const Marques& marques) {
  if (bloc.saisie[Rang(i)] == kVide) {
    // An empty cell whose symbol is proved is never marked as possible, whether the proof is shown or not.
    if (bloc.sure[Rang(i)] != kVide) return marques.sure ? Marque::kCertaine : Marque::kAucune;
    return marques.poss && bloc.poss[Rang(i)] != kVide ? Marque::kPossible : Marque::kAucune;
  }
  const std::int32_t etat = bloc.etat[Rang(i)];
  if (etat == kDonnee) return Marque::kDonnee;
  if (etat == kPossible && marques.bleu) return Marque::kHypothetique;
  if (etat == kErronee && marques.rouge) return Marque::kErronee;
  return Marque::kAucune;
}

void BoardDisplay::SetInfos() {
  Rapport(systeme_, U"FRMSudoku.SetInfos", [this] {
    Texte titre;
    if (!jeu_.VmNom.empty()) {
      titre = NomSansExtension(jeu_.VmNom);
    } else if (jeu_.VgEtat != kSansGrille) {
      titre = U"(Nouvelle grille)";
    }
    if (jeu_.VmPartie > 0) titre += U" - " + jeu_.VgParties[Rang(jeu_.VmPartie)].Nom;
    LblInfos_.Caption = titre;
  });
}

Twips BoardDisplay::GetPos(int VpPos, int VpAxe) const {
  const CaseTexte& modele = plateau_.TxtCase(0);
  const int N = jeu_.VmTaille;
  if (VpAxe == 0) return (modele.Width + kEcart) * ((VpPos - 1) % N) + modele.Left;
  return (modele.Height + kEcart) * ((VpPos - 1) / N) + modele.Top;
}

void BoardDisplay::MetEnPlace() {
  const Geometrie& geometrie = *jeu_.VmGrille.Donnees().geometrie;
  plateau_.Efface();
  for (int i = 1; i <= geometrie.Cases(); ++i) plateau_.AjouteCase(GetPos(i, 0), GetPos(i, 1));
  for (int b = 1; b <= geometrie.N(); ++b) {
    const auto serie = geometrie.Serie(kCarre, b);
    const CaseTexte& premiere = plateau_.TxtCase(serie.front());
    const CaseTexte& derniere = plateau_.TxtCase(serie.back());
    const Twips Left = premiere.Left - kEcart;
    const Twips Top = premiere.Top - kEcart;
    plateau_.AjouteCadre(Left, Top, derniere.Width + derniere.Left - Left + 2 * kEcart,
                         derniere.Height + derniere.Top - Top + 2 * kEcart);
  }
  const CadreCarre& dernier = plateau_.Box(geometrie.N());
  fenetre_.Width = dernier.Width + dernier.Left + 350;
  fenetre_.Height = dernier.Height + dernier.Top + 850;
  LblChrono_.Width = fenetre_.Width - 150;
  LblInfos_.Width = fenetre_.Width - 150;
  LblChrono_.Visible = true;
  assistant_.OubliePosition();
}

}  // namespace sudoku

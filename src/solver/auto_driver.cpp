#include "solver/auto_driver.h"

namespace sudoku {
namespace {

constexpr std::int16_t kInsoluble = -1;
constexpr std::int16_t kNonResolu = 1;  // any positive verdict

void Ajoute(Texte& texte, std::uint64_t nombre) {
  for (const char chiffre : std::to_string(nombre)) texte += static_cast<char32_t>(chiffre);
}

}  // namespace

AutoDriver::AutoDriver(GameState& jeu, Evaluateur& evaluateur, PlateauAuto& plateau, Lecture lecture,
                       Auditeur* auditeur)
    : jeu_(jeu),
      evaluateur_(evaluateur),
      plateau_(plateau),
      lecture_(lecture),
      auditeur_(auditeur),
      general_(evaluateur, auditeur) {}

void AutoDriver::JeuAuto(bool VpReset, bool VpGuess) {
  if (VpReset) jeu_.VsResolu = false;
  if (jeu_.VsResolu) {
    if (!jeu_.VgSilence) jeu_.VmGrille = jeu_.VmGrilleEtat;
    plateau_.Affiche();
    return;
  }
  if (jeu_.VgSilence) GrilleCopy(jeu_.VmGrille, jeu_.VmGrilleEtat);
  // A loud run writes straight into the live cells until the first Guess.
  Grille VlTravail = jeu_.VgSilence ? jeu_.VmGrilleEtat : jeu_.VmGrille;
  Travail& travail = TravailPour(VlTravail);
  travail.Commence(VlTravail);
  comptes_ = {};
  const std::int16_t VlVerdict = Cherche(travail, VpGuess);
  if (VlVerdict == 0) {
    comptes_.faites = VlSupp_.Faites();
    comptes_.refutees = VlSupp_.Refutees();
  }
  VlTravail = travail.Rend(lecture_ == Lecture::kContenus);
  if (VlVerdict == 0) jeu_.VsResolu = true;
  if (jeu_.VgSilence) {
    jeu_.VgEtat = kJeu;
  } else {
    jeu_.VmGrille = VlTravail;
    plateau_.Message(MessageFinal(VlVerdict));
  }
  if (VlVerdict == 0) jeu_.VmGrilleEtat = VlTravail;
  plateau_.Affiche();
}

Travail& AutoDriver::TravailPour(const Grille& grille) {
  if (auditeur_ != nullptr || !NoyauConvient(grille)) return general_;
  if (coteNoyau_ != grille.N()) noyau_ = FabriqueTravailNoyau(coteNoyau_ = grille.N(), evaluateur_);
  return *noyau_;
}

// Solve pass and supposition by turns. It ends: a turn opens a level, or refutes for good a candidate of the
// last one, or, where no cell is left to suppose in, ends the run or refutes. The cells of the levels ascend,
// so that no more than N*N are open; a level has no more candidates than N or the symbols in its cell's text,
// say C; and one that has none left closes with a box. So from box to box there are no more turns than 1 +
// N*N * (1 + C). What the levels have refuted, the outer ones counting before the inner ones, only ever
// grows.
std::int16_t AutoDriver::Cherche(Travail& travail, bool VpGuess) {
  VlSupp_.Efface();
  rejouee_ = true;
  tours_ = 0;
  for (bool base = false;; base = true) {
    ++tours_;
    std::int16_t VlVerdict = travail.JeuSolve(false);
    if (!base) travail.PrendBase();
    // Two cells of a unit can get one symbol in one sweep, and no cell then lacks a candidate.
    if (VlVerdict == 0 && VlSupp_.Niveaux() > 0 && travail.SymboleEnDouble()) VlVerdict = kInsoluble;
    if (GuessResult(VlVerdict, travail) || !VpGuess) return VlVerdict;
    if (Guess(travail)) continue;
    if (travail.Acheve() == 0 && !travail.SymboleEnDouble()) return 0;
    if (VlSupp_.Niveaux() == 0) return kNonResolu;
    if (GuessResult(kInsoluble, travail)) return kInsoluble;
    Guess(travail);
  }
}

// Judges a solve pass. True: the search is over. False: Guess is to be called.
bool AutoDriver::GuessResult(std::int16_t VpResultat, Travail& travail) {
  if (VpResultat == 0) return true;
  if (VpResultat > 0) return false;
  while (VlSupp_.Niveaux() > 0) {
    if (Refute()) return false;
    if (lecture_ == Lecture::kTout) travail.Montre();
    ++comptes_.retours;
    plateau_.Message(U"Retour arrière ! Procédure à vérifier");
    VlSupp_.Ferme();
  }
  return true;
}

bool AutoDriver::Refute() {
  const TSupposition& niveau = VlSupp_.Dernier();
  if (auditeur_ != nullptr) auditeur_->Refute(niveau.Index, niveau.Valeur(), VlSupp_.Niveaux());
  return VlSupp_.Refute();
}

void AutoDriver::DitSuppose() {
  if (auditeur_ == nullptr) return;
  const TSupposition& niveau = VlSupp_.Dernier();
  auditeur_->Suppose(niveau.Index, niveau.Valeur(), VlSupp_.Niveaux());
}

// Makes the next supposition, on the board rebuilt from the base and the live suppositions: a further
// candidate of a refuted level, or a new level on the first open cell behind the last, after a solve pass.
// False: there is no such cell.
bool AutoDriver::Guess(Travail& travail) {
  travail.Detache();
  if (VlSupp_.Niveaux() > 0 && !VlSupp_.Dernier().vivante) {
    VlSupp_.Dernier().vivante = true;
    if (auditeur_ != nullptr) auditeur_->Reprend();
    DitSuppose();
    Rejoue(travail);
    return true;
  }
  // The board of the last attempt won't do: what it wrote before its last supposition was found without it,
  // and the deduction depends on its order. It will where that supposition was made on the very board of the
  // base, or where the order is seen to make no difference; who listens hears that pass all the same.
  const bool surLaBase = VlSupp_.Niveaux() == 0;
  rejouee_ |= travail.CommeRejouee();
  if (!rejouee_ || (auditeur_ != nullptr && !surLaBase)) {
    if (auditeur_ != nullptr) auditeur_->Reprend();
    Rejoue(travail);
    travail.JeuSolve(true);  // a contradiction is no matter here: a cell is looked for all the same
  }
  const int cellule = travail.CelluleOuverte(surLaBase ? 0 : VlSupp_.Dernier().Index, Possible_);
  if (cellule == 0) return false;
  VlSupp_.Ouvre(static_cast<std::int16_t>(cellule), Possible_);
  DitSuppose();
  travail.Suppose(cellule, VlSupp_.Dernier().Valeur());
  rejouee_ = surLaBase;
  return true;
}

// The base with all suppositions.
void AutoDriver::Rejoue(Travail& travail) {
  travail.Reconstruit();
  for (std::size_t i = 1; i <= VlSupp_.Niveaux(); ++i) travail.Suppose(VlSupp_[i].Index, VlSupp_[i].Valeur());
  rejouee_ = true;
}

TexteVue AutoDriver::MessageFinal(std::int16_t VlVerdict) {
  if (VlVerdict == kInsoluble) return U"Insoluble (état initial incorrect)";
  if (VlVerdict != 0) return U"Non résolu";
  if (comptes_.faites == 0) return U"Résolu sans supposition";
  message_ = U"Résolu avec ";
  Ajoute(message_, comptes_.faites);
  message_ += U" supposition(s), dont ";
  Ajoute(message_, comptes_.refutees);
  message_ += U" erreur(s)";
  return message_;
}

}  // namespace sudoku

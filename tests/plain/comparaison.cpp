#include "plain/comparaison.h"

#include <algorithm>

#include "engine/explications.h"

namespace sudoku::plain {
namespace {

constexpr std::size_t kBoitesMax = 20;
struct TropLong {};

Texte Joint(const std::vector<Texte>& morceaux) {
  Texte texte;
  for (const Texte& m : morceaux) texte += m + U"|";
  return texte;
}

void Note(std::string& ecarts, const char* quoi, TexteVue simple, TexteVue rapide) {
  if (simple == rapide) return;
  ecarts += std::string("; ") + quoi + ": plain " + VersUtf8(simple) + ", engine " + VersUtf8(rapide);
}

void Note(std::string& ecarts, const char* quoi, std::int64_t simple, std::int64_t rapide) {
  Note(ecarts, quoi, Decimal(simple), Decimal(rapide));
}

// What makes a cell, but for its sentences.
Texte Fiche(const Jeu& jeu, const ClsPos& c) {
  return Joint({Decimal(c.Index), Decimal(c.Unite[kLigne]), Decimal(c.Unite[kColonne]),
                Decimal(c.Unite[kCarre]), Decimal(c.Etat), c.ValeurSaisie, Texte(jeu.Valeur(c)), c.Possible,
                c.SolutionSure, c.SolutionPoss});
}

Texte Fiche(const sudoku::ClsPos& c) {
  return Joint({Decimal(c.Index()), Decimal(c.Ligne()), Decimal(c.Colonne()), Decimal(c.Carre()),
                Decimal(c.Etat()), c.ValeurSaisie(), c.Valeur(), c.Possible(), c.SolutionSure(),
                c.SolutionPoss()});
}

Texte Image(const Jeu& jeu) {
  Texte texte;
  for (const Case& c : jeu.VmGrille) texte += Fiche(jeu, *c) + c->Explications;
  return texte;
}

Texte Image(const sudoku::Grille& grille) {
  Texte texte;
  for (int i = 1; i <= grille.Borne(); ++i) texte += Fiche(grille(i)) + sudoku::Explications(grille, i);
  return texte;
}

// The kind of a sentence: "nue", or "figure 0 2" with its two types of unit.
std::string Genre(TexteVue phrase) {
  if (Contient(phrase, U"Seule solution")) return "seule";
  if (Contient(phrase, U"éléments")) return "cachée";
  if (Contient(phrase, U"La séquence")) return "nue";
  if (!Contient(phrase, U"exclut sa présence")) return "confinée";
  const auto type = [&](const Texte& devant) {
    return Contient(phrase, devant + U"colonnes") ? " 0" : Contient(phrase, devant + U"lignes") ? " 1" : " 2";
  };
  return std::string("figure") + type(U"des ") + type(U"dans les ");
}

// Runs `f`; true if it was given up.
template <class F>
bool Abandonne(F f) {
  try {
    f();
  } catch (const TropLong&) {
    return true;
  }
  return false;
}

}  // namespace

void Pose(const Plateau& plateau, GameState& jeu, Evaluateur& evaluateur) {
  jeu.VgEtat = kEntree;
  jeu.VmValeurs = plateau.symboles;
  jeu.VmTaille = static_cast<std::int16_t>(plateau.symboles.size());
  jeu.VmGrille = sudoku::Grille::Nouvelle(jeu, plateau.symboles);
  jeu.VmGrilleEtat = {};
  jeu.VsResolu = false;
  evaluateur.Evaluation(jeu.VmGrille, 1);
  for (std::size_t i = 0; i < plateau.cases.size(); ++i) {
    jeu.VmGrille(static_cast<int>(i + 1)).Load(plateau.cases[i].valeur, plateau.cases[i].etat);
  }
  jeu.VgEtat = plateau.mode;
}

Paire::Paire() {
  simple_.Message = [this](TexteVue texte) { Ouvre(boitesSimple_, texte, Image(simple_)); };
  rapide_.Message = [this](TexteVue texte) { Ouvre(boitesRapide_, texte, Image(rapide_.VmGrille)); };
}

void Paire::Ouvre(std::vector<Texte>& boites, TexteVue texte, const Texte& grille) const {
  boites.push_back(avecGrille_ ? Texte(texte) + U" " + grille : Texte(texte));
  if (boites.size() > kBoitesMax) throw TropLong{};
}

void Paire::Commence(const std::string& recit) {
  boitesSimple_.clear();
  boitesRapide_.clear();
  recit_ += "  " + recit + "\n";
}

std::string Paire::Finit(std::string ecarts) {
  if (ecarts.empty()) ecarts = Compare();
  return ecarts.empty() ? ecarts : ecarts + "\n" + recit_;
}

std::string Paire::Charge(const Plateau& plateau) {
  recit_.clear();
  Commence(VersUtf8(plateau.symboles) + ", mode " + std::to_string(plateau.mode) + ":");
  abandonnee_ = false;
  simple_.JeuVierge(plateau.symboles);
  for (std::size_t i = 0; i < plateau.cases.size(); ++i) {
    const Contenu& c = plateau.cases[i];
    simple_.VmGrille[i]->Load(c.valeur, c.etat);
    if (c == Contenu{}) continue;
    recit_ += " " + std::to_string(i + 1) + "=\"" + VersUtf8(c.valeur) + "\"/" + std::to_string(c.etat);
  }
  recit_ += "\n";
  simple_.VgEtat = plateau.mode;
  Pose(plateau, rapide_, evaluateur_);
  return Finit();
}

void Paire::EvalueLesDeux(int passes) {
  verdictSimple_ = simple_.Evaluation(simple_.VmGrille, passes);
  verdictRapide_ = evaluateur_.Evaluation(rapide_.VmGrille, passes);
}

std::string Paire::Evalue(int passes) {
  Commence("evaluation " + std::to_string(passes));
  EvalueLesDeux(passes);
  return Finit();
}

// As the board does it: in other modes than grid entry and play nothing is evaluated, a complete grid ends
// it.
std::string Paire::Saisit(int index, TexteVue texte) {
  Commence("type " + std::to_string(index) + " " + VersUtf8(texte));
  simple_.DonneValeur(*simple_.VmGrille[static_cast<std::size_t>(index - 1)], texte);
  rapide_.VmGrille(index).Valeur(texte);
  if (simple_.VgEtat == kEntree || simple_.VgEtat == kJeu) {
    EvalueLesDeux(simple_.VgEtat == kEntree ? 1 : 2);
    if (simple_.VgEtat == kJeu && verdictSimple_ == 0) simple_.VgEtat = rapide_.VgEtat = kFini;
  }
  return Finit();
}

std::string Paire::Remplit() {
  Commence("fill in");
  for (const Case& c : simple_.VmGrille) {
    const Texte solution = c->SolutionSure.empty() ? c->SolutionPoss : c->SolutionSure;
    if (solution.empty() || (c->SolutionSure.empty() && !c->ValeurSaisie.empty())) continue;
    simple_.DonneValeur(*c, solution);
    rapide_.VmGrille(c->Index).Valeur(solution);
  }
  EvalueLesDeux(2);
  return Finit();
}

std::string Paire::Recopie() {
  Commence("copy");
  Grille simple = simple_.GrilleCopy(simple_.VmGrille);
  sudoku::Grille rapide;
  sudoku::GrilleCopy(rapide_.VmGrille, rapide);
  const std::string ecarts = Compare(simple, rapide);
  verdictSimple_ = simple_.Evaluation(simple, 2);
  verdictRapide_ = evaluateur_.Evaluation(rapide, 2);
  return Finit(ecarts.empty() ? Compare(simple, rapide) : ecarts);
}

std::string Paire::Joue(const Auto& comment) {
  const auto si = [](bool oui, const char* mot) { return oui ? mot : ""; };
  Commence(std::string("automatic play") + si(comment.reset, " reset") + si(comment.guess, " guess") +
           si(comment.silence, " silent") + si(comment.contenus, " contents"));
  simple_.VgSilence = rapide_.VgSilence = comment.silence;
  avecGrille_ = !comment.contenus;
  AutoDriver& pilote = comment.contenus ? autoContenus_ : auto_;
  const bool rapide = Abandonne([&] { pilote.JeuAuto(comment.reset, comment.guess); });
  const bool simple = Abandonne([&] { simple_.JeuAuto(comment.reset, comment.guess); });
  simple_.VgSilence = rapide_.VgSilence = false;
  avecGrille_ = true;
  abandonnee_ = rapide && simple;
  return Finit(comment.contenus && !rapide && !simple ? CompareContenus() : std::string());
}

// After a run that owes no more; then the other fields are made good.
std::string Paire::CompareContenus() {
  std::string ecarts;
  for (const Case& c : simple_.VmGrille) {
    Note(ecarts, "ValeurSaisie", c->ValeurSaisie, rapide_.VmGrille(c->Index).ValeurSaisie());
    Note(ecarts, "Etat", c->Etat, rapide_.VmGrille(c->Index).Etat());
  }
  if (!simple_.VmGrilleEtat.empty() && rapide_.VmGrilleEtat.Borne() > 0) {
    simple_.Evaluation(simple_.VmGrilleEtat, 2);
    evaluateur_.Evaluation(rapide_.VmGrilleEtat, 2);
  }
  EvalueLesDeux(2);
  return ecarts;
}

std::string Paire::Compare() {
  std::string ecarts;
  Note(ecarts, "boxes", Joint(boitesSimple_), Joint(boitesRapide_));
  for (const Texte& m : boitesSimple_) ++bilan_[VersUtf8(m.substr(0, 10))];
  if (abandonnee_ || !ecarts.empty()) return ecarts;
  Note(ecarts, "verdict", verdictSimple_, verdictRapide_);
  Note(ecarts, "VgEtat", simple_.VgEtat, rapide_.VgEtat);
  Note(ecarts, "VsResolu", simple_.VsResolu, rapide_.VsResolu);
  Note(ecarts, "cells of VmGrilleEtat", std::ssize(simple_.VmGrilleEtat), rapide_.VmGrilleEtat.Borne());
  ecarts += Compare(simple_.VmGrille, rapide_.VmGrille);
  if (!ecarts.empty() || simple_.VmGrilleEtat.empty()) return ecarts;
  const bool memes = simple_.VmGrilleEtat[0] == simple_.VmGrille[0];
  Note(ecarts, "cells shared", memes, rapide_.VmGrille.MemesCases(rapide_.VmGrilleEtat));
  return memes ? ecarts : ecarts + Compare(simple_.VmGrilleEtat, rapide_.VmGrilleEtat);
}

// Sentences of large grids are compared on some of their cells: to read them all takes longer than to make
// them.
std::string Paire::Compare(const Grille& simple, const sudoku::Grille& rapide) {
  const int pas = simple_.VmTaille > 25 ? 97 : 1;
  for (const Case& c : simple) {
    std::string ecarts;
    Note(ecarts, "fields", Fiche(simple_, *c), Fiche(rapide(c->Index)));
    if (ecarts.empty() && c->Index % pas == 0) ecarts = ComparePhrases(*c, rapide);
    if (!ecarts.empty()) return "; cell " + std::to_string(c->Index) + ecarts;
  }
  return {};
}

std::string Paire::ComparePhrases(const ClsPos& simple, const sudoku::Grille& rapide) {
  std::string ecarts;
  Note(ecarts, "Explications", simple.Explications, sudoku::Explications(rapide, simple.Index));
  TexteVue reste = simple.Explications;
  for (std::size_t fin; (fin = reste.find(U"\r\n")) != TexteVue::npos; reste.remove_prefix(fin + 2)) {
    ++bilan_[Genre(reste.substr(0, fin))];
  }
  return ecarts;
}

}  // namespace sudoku::plain

#include "plain/comparaison.h"

#include <algorithm>

#include "engine/explications.h"

namespace sudoku::plain {
namespace {

struct TropLong {};

std::size_t At(int i) {
  return static_cast<std::size_t>(i);
}

template <class A, class B>
void Note(std::string& ecarts, const char* quoi, const A& simple, const B& rapide) {
  if (simple == rapide) return;
  const auto ecrit = [](const auto& v) {
    if constexpr (std::is_convertible_v<decltype(v), TexteVue>) {
      return '"' + VersUtf8(v) + '"';
    } else {
      return std::to_string(v);
    }
  };
  ecarts += std::string("; ") + quoi + ": plain " + ecrit(simple) + ", engine " + ecrit(rapide);
}

// A grid as one text, the fields of each cell behind one another.
Texte Image(const Grille& grille) {
  Texte texte;
  for (std::size_t i = 1; i < grille.size(); ++i) {
    const ClsPos& c = *grille[i];
    for (const Texte& champ :
         {Decimal(c.Etat), c.ValeurSaisie(), c.Possible, c.SolutionSure, c.SolutionPoss, c.Explications}) {
      texte += champ + U"/";
    }
  }
  return texte;
}

Texte Image(const sudoku::Grille& grille) {
  Texte texte;
  for (int i = 1; i <= grille.Borne(); ++i) {
    const sudoku::ClsPos c = grille(i);
    for (const Texte& champ : {Decimal(c.Etat()), c.ValeurSaisie(), c.Possible(), c.SolutionSure(),
                               c.SolutionPoss(), sudoku::Explications(grille, i)}) {
      texte += champ + U"/";
    }
  }
  return texte;
}

Texte Joint(const std::vector<Texte>& boites) {
  Texte texte;
  for (const Texte& b : boites) texte += b + U"|";
  return texte;
}

// The kind of a sentence: "nue", or "figure 0 2" with its two types of unit.
std::string Genre(TexteVue phrase) {
  if (Contient(phrase, U"Seule solution")) return "seule";
  if (Contient(phrase, U"éléments")) return "cachée";
  if (Contient(phrase, U"La séquence")) return "nue";
  if (!Contient(phrase, U"exclut sa présence")) return "confinée";
  const auto type = [&](TexteVue devant) {
    return Contient(phrase, Texte(devant) += U"colonnes") ? " 0"
           : Contient(phrase, Texte(devant) += U"lignes") ? " 1"
                                                          : " 2";
  };
  return std::string("figure") + type(U"des ") + type(U"dans les ");
}

// Runs `f`; true if it was given up.
template <class F>
bool Borne(F f) {
  try {
    f();
  } catch (const TropLong&) {
    return true;
  }
  return false;
}

}  // namespace

Paire::Paire(std::size_t boitesMax) : boitesMax_(boitesMax) {
  simple_.Message = [this](TexteVue texte) { Ouvre(boitesSimple_, texte, Image(simple_.VmGrille)); };
  rapide_.Message = [this](TexteVue texte) { Ouvre(boitesRapide_, texte, Image(rapide_.VmGrille)); };
}

void Paire::Ouvre(std::vector<Texte>& boites, TexteVue texte, const Texte& grille) const {
  boites.push_back(avecGrille_ ? Texte(texte) + U" " + grille : Texte(texte));
  if (boites.size() > boitesMax_) throw TropLong{};
}

std::string Paire::Fait(const Action& action) {
  boitesSimple_.clear();
  boitesRapide_.clear();
  switch (action.genre) {
    case Action::Genre::kCharge:
      Charge(action.plateau);
      break;
    case Action::Genre::kEvalue:
      Evalue(action.nombre);
      break;
    case Action::Genre::kSaisit:
      Saisit(action.nombre, action.texte);
      break;
    case Action::Genre::kRemplit:
      Remplit();
      break;
    case Action::Genre::kRecopie:
      if (const std::string ecarts = Recopie(); !ecarts.empty()) return ecarts;
      break;
    case Action::Genre::kJoue:
      if (const std::string ecarts = Joue(action); !ecarts.empty()) return ecarts;
      break;
  }
  return Compare();
}

void Paire::Charge(const Plateau& plateau) {
  abandonnee_ = false;
  simple_.JeuVierge(plateau.symboles);
  rapide_.VgEtat = kEntree;
  rapide_.VmValeurs = plateau.symboles;
  rapide_.VmTaille = static_cast<std::int16_t>(plateau.symboles.size());
  rapide_.VmGrille = sudoku::Grille::Nouvelle(rapide_, plateau.symboles);
  rapide_.VmGrilleEtat = {};
  rapide_.VsResolu = false;
  moteur_.Evaluation(rapide_.VmGrille, 1);
  for (std::size_t i = 0; i < plateau.cases.size(); ++i) {
    const Contenu& c = plateau.cases[i];
    simple_.VmGrille[i + 1]->Load(c.valeur, c.etat);
    rapide_.VmGrille(static_cast<int>(i + 1)).Load(c.valeur, c.etat);
  }
  simple_.VgEtat = rapide_.VgEtat = plateau.mode;
}

void Paire::Evalue(int passes) {
  verdictSimple_ = simple_.Evaluation(simple_.VmGrille, passes);
  verdictRapide_ = moteur_.Evaluation(rapide_.VmGrille, passes);
}

// As the board does it: in other modes than grid entry and play nothing is evaluated, a complete grid ends
// it.
void Paire::Saisit(int index, TexteVue texte) {
  simple_.DonneValeur(*simple_.VmGrille[At(index)], texte);
  rapide_.VmGrille(index).Valeur(texte);
  if (simple_.VgEtat != kEntree && simple_.VgEtat != kJeu) return;
  Evalue(simple_.VgEtat == kEntree ? 1 : 2);
  if (simple_.VgEtat == kJeu && verdictSimple_ == 0) simple_.VgEtat = rapide_.VgEtat = kFini;
}

void Paire::Remplit() {
  for (std::size_t i = 1; i < simple_.VmGrille.size(); ++i) {
    ClsPos& c = *simple_.VmGrille[i];
    sudoku::ClsPos rapide = rapide_.VmGrille(static_cast<int>(i));
    const Texte solution = c.SolutionSure.empty() ? c.SolutionPoss : c.SolutionSure;
    if (solution.empty() || (c.SolutionSure.empty() && !c.ValeurSaisie().empty())) continue;
    simple_.DonneValeur(c, solution);
    rapide.Valeur(solution);
  }
  Evalue(2);
}

std::string Paire::Recopie() {
  Grille simple = simple_.GrilleCopy(simple_.VmGrille);
  sudoku::Grille rapide;
  sudoku::GrilleCopy(rapide_.VmGrille, rapide);
  std::string ecarts = Compare(simple, rapide);
  verdictSimple_ = simple_.Evaluation(simple, 2);
  verdictRapide_ = moteur_.Evaluation(rapide, 2);
  return ecarts.empty() ? Compare(simple, rapide) : ecarts;
}

std::string Paire::Joue(const Action& action) {
  simple_.VgSilence = rapide_.VgSilence = action.silence;
  avecGrille_ = !action.contenus;
  AutoDriver& pilote = action.contenus ? autoContenus_ : auto_;
  const bool rapide = Borne([&] { pilote.JeuAuto(action.reset, action.guess); });
  const bool simple = Borne([&] { simple_.JeuAuto(action.reset, action.guess); });
  simple_.VgSilence = rapide_.VgSilence = false;
  avecGrille_ = true;
  abandonnee_ = rapide && simple;
  return action.contenus && !rapide && !simple ? CompareContenus() : std::string();
}

// After a run that owes no more; then the other fields are made good.
std::string Paire::CompareContenus() {
  std::string ecarts;
  for (std::size_t i = 1; i < simple_.VmGrille.size(); ++i) {
    const sudoku::ClsPos rapide = rapide_.VmGrille(static_cast<int>(i));
    Note(ecarts, "ValeurSaisie", simple_.VmGrille[i]->ValeurSaisie(), rapide.ValeurSaisie());
    Note(ecarts, "Etat", simple_.VmGrille[i]->Etat, rapide.Etat());
  }
  if (simple_.VmGrilleEtat.size() > 1 && rapide_.VmGrilleEtat.Borne() > 0) {
    simple_.Evaluation(simple_.VmGrilleEtat, 2);
    moteur_.Evaluation(rapide_.VmGrilleEtat, 2);
  }
  Evalue(2);
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
  Note(ecarts, "cells of VmGrilleEtat", std::max<std::size_t>(simple_.VmGrilleEtat.size(), 1) - 1,
       At(rapide_.VmGrilleEtat.Borne()));
  ecarts += Compare(simple_.VmGrille, rapide_.VmGrille);
  if (!ecarts.empty() || simple_.VmGrilleEtat.empty()) return ecarts;
  const bool memes = simple_.VmGrilleEtat[1] == simple_.VmGrille[1];
  Note(ecarts, "cells shared", memes, rapide_.VmGrille.MemesCases(rapide_.VmGrilleEtat));
  return memes ? ecarts : ecarts + Compare(simple_.VmGrilleEtat, rapide_.VmGrilleEtat);
}

// Sentences of large grids are compared on some of their cells: to read them all takes longer than to make
// them.
std::string Paire::Compare(const Grille& simple, const sudoku::Grille& rapide) {
  const int pas = simple_.VmTaille > 25 ? 97 : 1;
  for (int i = 1; i < static_cast<int>(simple.size()); ++i) {
    std::string ecarts = CompareCase(*simple[At(i)], rapide(i));
    if (ecarts.empty() && i % pas == 0) ecarts = ComparePhrases(*simple[At(i)], rapide);
    if (!ecarts.empty()) return "; cell " + std::to_string(i) + ecarts;
  }
  return {};
}

std::string Paire::CompareCase(const ClsPos& simple, const sudoku::ClsPos& rapide) {
  std::string ecarts;
  Note(ecarts, "Index", simple.Index, rapide.Index());
  Note(ecarts, "Ligne", simple.Ligne, rapide.Ligne());
  Note(ecarts, "Colonne", simple.Colonne, rapide.Colonne());
  Note(ecarts, "Carre", simple.Carre, rapide.Carre());
  Note(ecarts, "Etat", simple.Etat, rapide.Etat());
  Note(ecarts, "ValeurSaisie", simple.ValeurSaisie(), rapide.ValeurSaisie());
  Note(ecarts, "Valeur", simple_.Valeur(simple), TexteVue(rapide.Valeur()));
  Note(ecarts, "Possible", simple.Possible, rapide.Possible());
  Note(ecarts, "SolutionSure", simple.SolutionSure, rapide.SolutionSure());
  Note(ecarts, "SolutionPoss", simple.SolutionPoss, rapide.SolutionPoss());
  return ecarts;
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

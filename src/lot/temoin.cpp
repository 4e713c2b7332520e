#include "lot/temoin.h"

#include <algorithm>

namespace sudoku::lot {
namespace {

using Genre = Argument::Genre;

}  // namespace

Temoin::Temoin(std::span<const int> solution, bool saisiesJustes)
    : solution_(solution), saisiesJustes_(saisiesJustes) {}

void Temoin::Examine(const Grille& VpGrille, int verdict) {
  bloc_ = &VpGrille.Donnees();
  for (int i = 1; i <= VpGrille.Borne(); ++i) ExamineSolution(i, bloc_->sure[Rang(i)], "SolutionSure");
  if (SecondePasse() && !saisiesJustes_) return;
  if (verdict < 0) Contredit(0, "contradiction dans une grille qui a une solution");
  NoteValeurs();
  for (int i = 1; i <= VpGrille.Borne(); ++i) {
    ExamineSolution(i, bloc_->poss[Rang(i)], "SolutionPoss");
    ExamineCandidats(i);
  }
  for (const Fait& fait : bloc_->journal.faits) ExamineFait(fait);
}

// The pass that ran last counted the unproved entries.
bool Temoin::SecondePasse() const {
  for (int i = 1; i <= bloc_->geometrie->Cases(); ++i) {
    if (bloc_->etat[Rang(i)] == kPossible && bloc_->possibleTexte[Rang(i)] != kVide) return true;
  }
  return false;
}

void Temoin::NoteValeurs() {
  const Geometrie& geo = *bloc_->geometrie;
  for (auto& vus : vus_) vus.assign(Rang(geo.Cases()), 0);
  for (int i = 1; i <= geo.Cases(); ++i) {
    const int position = bloc_->alphabet->Position(bloc_->possibleTexte[Rang(i)]);
    if (position < 0) continue;
    for (int type = kColonne; type <= kCarre; ++type) {
      vus_[type][Rang((geo.Unite(type, i) - 1) * geo.N() + position)] = 1;
    }
  }
}

void Temoin::ExamineSolution(int cellule, Code code, const char* champ) {
  if (code == kVide || bloc_->alphabet->Position(code) == Solution(cellule)) return;
  Contredit(cellule, std::string(champ) + " " + VersUtf8(bloc_->alphabet->TexteDe(code)));
}

// What the contents alone would leave, less what is left, was taken away by deductions.
void Temoin::ExamineCandidats(int cellule) {
  if (bloc_->possibleTexte[Rang(cellule)] != kVide) return;
  const Geometrie& geo = *bloc_->geometrie;
  for (int s = 0; s < geo.N(); ++s) {
    const auto vu = [&](int type) {
      return vus_[type][Rang((geo.Unite(type, cellule) - 1) * geo.N() + s)] != 0;
    };
    if (bloc_->Candidat(cellule, s)) continue;
    if (!vu(kColonne) && !vu(kLigne) && !vu(kCarre)) ++retraits_;
    if (s == Solution(cellule)) {
      Contredit(cellule, "candidat perdu : " + VersUtf8(bloc_->alphabet->TexteDe(s)));
    }
  }
}

void Temoin::ExamineFait(const Fait& fait) {
  const Argument& a = bloc_->journal.arguments[fait.argument];
  if (Perd(fait, Solution(fait.cellule))) Contredit(fait.cellule, "une déduction exclut la solution");
  if (!PhraseVraie(a)) Contredit(fait.cellule, "une explication est fausse");
}

// The fact takes this symbol from its cell.
bool Temoin::Perd(const Fait& fait, int symbole) const {
  const Argument& a = bloc_->journal.arguments[fait.argument];
  switch (a.genre) {
    case Genre::kInference:
    case Genre::kFigure:
      return Symbole(a.symbole) == symbole;
    case Genre::kCachee:
      return Contient(static_cast<std::uint32_t>(fait.exclus), symbole);
    case Genre::kNue:
      return Contient(a.masques, symbole);
    case Genre::kSeule:
      break;
  }
  return false;
}

bool Temoin::PhraseVraie(const Argument& a) const {
  switch (a.genre) {
    case Genre::kInference:
      return Confine(a, Symbole(a.symbole));
    case Genre::kFigure: {
      for (int unite = 1; unite <= bloc_->geometrie->N(); ++unite) {
        if (!Contient(a.masques, unite - 1)) continue;
        const auto serie = bloc_->geometrie->Serie(a.type, unite);
        const auto place =
            std::ranges::find_if(serie, [&](int i) { return Solution(i) == Symbole(a.symbole); });
        if (!Contient(MasqueB(a), bloc_->geometrie->Unite(a.type2, *place) - 1)) return false;
      }
      return true;
    }
    case Genre::kCachee:
    case Genre::kNue:
      return MemesSymboles(a);
    case Genre::kSeule:
      break;
  }
  return true;
}

// The symbol lies in one of the places of set A.
bool Temoin::Confine(const Argument& a, int symbole) const {
  const auto serie = bloc_->geometrie->Serie(a.type, a.unite);
  for (int place = 0; place < bloc_->geometrie->N(); ++place) {
    if (Contient(a.masques, place) && Solution(serie[Rang(place)]) == symbole) return true;
  }
  return false;
}

// The places of set B hold the symbols of set A.
bool Temoin::MemesSymboles(const Argument& a) const {
  const auto serie = bloc_->geometrie->Serie(a.type, a.unite);
  for (int place = 0; place < bloc_->geometrie->N(); ++place) {
    const bool dedans = Contient(MasqueB(a), place);
    if (dedans != Contient(a.masques, Solution(serie[Rang(place)]))) return false;
  }
  return true;
}

void Temoin::Contredit(int cellule, const std::string& quoi) {
  if (contradictions_++ > 0) return;
  premiere_ = cellule == 0 ? quoi : "case " + std::to_string(cellule) + " : " + quoi;
}

bool Temoin::Contient(std::uint32_t debut, int nombre) const {
  return ((bloc_->journal.mots[debut + Rang(nombre / 64)] >> (nombre % 64)) & 1U) != 0;
}

std::uint32_t Temoin::MasqueB(const Argument& a) const {
  return a.masques + static_cast<std::uint32_t>(bloc_->mots);
}

}  // namespace sudoku::lot

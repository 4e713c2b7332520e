#pragma once

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <vector>

#include "engine/parts.h"
#include "grid/faits.h"

// The deductions: their order, what each does to cells, and the fact that it records. What there is to deduce
// a Trouveur finds, in tables of its own: trouve_voies.h, trouve_comptes.h, trouve_textes.h. Cells, symbols,
// units and places count from 0.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

// What is to go, found in unit u. Sets of symbols and places as far as the kind of deduction has them.
template <class Bits>
struct Trouvaille {
  Bits symboles{};
  Bits lieux{};     // where those stand in unit u
  Bits perdants{};  // the places to act on, one at least: of unit u, for a locked candidate of unit `unite`
  int unite = -1;
  int fois = 1;        // a symbol that stands twice in VmValeurs notes each place twice
  Code texte = kVide;  // a naked set that is a text, of characters that needn't be symbols
};

// What finds the deductions and keeps the tables they are found in. It calls f for each find, and may count
// on f to act at once, by the last five.
template <class T>
concept Trouveur = requires(T t, decltype(t.Reste(0)) reste, typename T::Bits bits, Appui appui,
                            Trouvaille<typename T::Bits> trouvaille, FigureDe<typename T::Bits> figure,
                            void (*deuxEntiers)(int, int), void (*f)(const Trouvaille<typename T::Bits>&),
                            void (*fFigure)(const FigureDe<typename T::Bits>&)) {
  // The candidates that the contents leave; false where a cell has none. Then Deduit's tables, with all units
  // and symbols to be looked at.
  { t.Amorce(appui) } -> std::same_as<bool>;
  t.Transpose();
  // The next unit from number n on that has changed since it was looked at, and takes it as looked at; -1.
  { t.UniteSale(0) } -> std::same_as<int>;
  // What is left to place in a unit, `reste`. Symbols that have one place there: f(symbol, place).
  t.ChaqueSeule(0, reste, deuxEntiers);
  // Symbols that have all their places, two or more, in another unit too.
  t.ChaqueConfinee(0, reste, f);
  // Hidden sets, all as the places were when Reste saw them; perdants: places with other candidates.
  t.ChaqueCachee(0, reste, f);
  // Naked sets, each on the candidates that the one before has left.
  t.ChaqueNue(0, reste, f);
  // Figures of the symbols whose places have changed since the last search.
  t.ChaqueFigure(fFigure);
  // Cells that came down to one candidate since the last call: f(cell, symbol).
  t.ChaqueReduite(deuxEntiers);

  { t.Places(0, 0) } -> std::convertible_to<typename T::Bits>;     // of a symbol in a unit
  { t.Cellule(0, 0) } -> std::same_as<int>;                        // at a place of a unit
  { t.HorsDe(0, bits) } -> std::convertible_to<typename T::Bits>;  // candidates of a cell outside a set
  { t.Dedans(figure) } -> std::convertible_to<typename T::Bits>;   // see Parts

  // Takes a symbol, or what a cell has of a naked set, from a cell; false where nothing is left to it.
  { t.Enleve(0, 0) } -> std::same_as<bool>;
  { t.EnleveNue(0, trouvaille) } -> std::same_as<bool>;
  // Makes a set of symbols the candidates of a cell.
  t.Remplace(0, bits);
  // Notes a solution.
  t.PoseSolution(0, 0);
};

// What the deductions are wanted for.
//   kFaits            each is written down, and all are made, also on a board that has lost all candidates of
//                     a cell already.
//   Vide(cell)        the open cell holds nothing at all: a solution for it is one to fill in.
// With facts, NoteArgument gives the number of one, NoteFait takes a cell that it changed. Without:
//   Abandonne()       a board that has lost all candidates of a cell is given up; that cell stays so.
//   NoteEnsemble(n)   a set of so many cells, symbols or units took something.
template <class U>
concept UsageAvecFaits = requires(U u, Argument argument) {
  { u.NoteArgument(argument, std::uint32_t{}, std::uint32_t{}) } -> std::same_as<std::uint32_t>;
  u.NoteFait(0, std::uint32_t{});
  u.NoteFait(0, std::uint32_t{}, std::uint32_t{});
};
template <class U>
concept UsageSansFaits = requires(U u) {
  { u.Abandonne() } -> std::same_as<bool>;
  u.NoteEnsemble(0);
};
template <class U>
concept Usage = requires(U u) {
  { U::kFaits } -> std::convertible_to<bool>;
  { u.Vide(0) } -> std::same_as<bool>;
  requires(U::kFaits ? UsageAvecFaits<U> : UsageSansFaits<U>);
};

template <Trouveur T, Usage U>
class DeductionsSur : public T {
 public:
  using Bits = typename T::Bits;
  enum Suite { kContradiction, kRien, kSolutions };

  // `quoi`: what T takes.
  template <class Quoi>
  DeductionsSur(Quoi& quoi, U& usage) : T(quoi), usage_(usage) {}

  std::uint64_t tours = 0;  // turns of Deduit

  // What the contents leave to each cell, and the cells with one candidate. kSolutions: a cell can be filled.
  // kContradiction comes in place of it and, from Deduit, of kRien too; without kFaits only.
  Suite Candidats(Appui appui);
  // Series and figures, from the simplest again after each removal, until a cell can be filled or nothing
  // goes.
  //
  // It ends. Every turn but the last takes something away: a candidate of an open cell, or a symbol from the
  // text of another. A hidden set alone writes candidates, and of those that the cell had before its unit was
  // run, each once: where sets overlap, the last one written is smaller than what was there before the first.
  // Of equal symbols ("aA") it leaves the first only, which may be another than the one that was there, but
  // nothing brings that one back. So a cell changes less than 2N times, a text as often as it has symbols,
  // and a pass takes no more turns than 1 + 2N for each cell + the length of the texts.
  Suite Deduit();

 private:
  using Figure = FigureDe<Bits>;
  using Genre = Argument::Genre;

  bool Balaye();
  bool TestSerie(int u);
  bool NxN();
  // What is done with a find. Finds are rare: the search for them keeps its registers without these in it.
  [[gnu::noinline]] void PoseSeule(int u, int symbole, int cellule);
  [[gnu::noinline]] void RetireConfinee(int u, const Trouvaille<Bits>& t);
  [[gnu::noinline]] void GardeCachee(int u, const Trouvaille<Bits>& t);
  [[gnu::noinline]] void RetireNue(int u, const Trouvaille<Bits>& t);
  [[gnu::noinline]] bool Retient(const Figure& figure);
  bool RetireFigure(const Figure& figure);
  template <class F>
  void ChaquePerte(const Figure& figure, F f) const;
  void PoseReduites();
  void PoseSolution(int cellule, int symbole);

  // What a fact of unit u begins with.
  static Argument De(Genre genre, int u) {
    return {.genre = genre, .type = TypeDe(u), .unite = static_cast<std::int16_t>(NumeroDe(u) + 1)};
  }
  template <class... B>
  std::uint32_t NoteArgument(const Argument& argument, const B&... masques) {
    if constexpr (U::kFaits) return usage_.NoteArgument(argument, masques...);
    return 0;
  }
  template <class... B>
  void NoteFait(int cellule, std::uint32_t argument, const B&... exclus) {
    if constexpr (U::kFaits) usage_.NoteFait(cellule, argument, exclus...);
  }
  void NoteEnsemble(const Bits& ensemble) {
    if constexpr (!U::kFaits) usage_.NoteEnsemble(Nombre(ensemble));
  }
  // Something went from a cell, and this says whether anything is left.
  void Change(bool reste) { contradiction_ |= !U::kFaits && !reste; }
  bool Arrete() const {
    if constexpr (U::kFaits)
      return false;
    else
      return contradiction_ && usage_.Abandonne();
  }
  Suite Fin() const { return contradiction_ ? kContradiction : aRemplir_ ? kSolutions : kRien; }

  U& usage_;
  std::vector<Figure> figures_;  // found, and not acted on yet
  bool contradiction_ = false;
  bool aRemplir_ = false;
};

template <Trouveur T, Usage U>
typename DeductionsSur<T, U>::Suite DeductionsSur<T, U>::Candidats(Appui appui) {
  aRemplir_ = false;
  contradiction_ = false;
  Change(T::Amorce(appui));
  if (Arrete()) return kContradiction;
  PoseReduites();
  return aRemplir_ ? Fin() : kRien;
}

template <Trouveur T, Usage U>
typename DeductionsSur<T, U>::Suite DeductionsSur<T, U>::Deduit() {
  T::Transpose();
  for (;;) {
    ++tours;
    const bool change = Balaye() || (!Arrete() && !aRemplir_ && NxN());
    if (Arrete()) return kContradiction;
    if (change) PoseReduites();
    if (aRemplir_ || !change) return Fin();
  }
}

// Cells with one candidate have it as their solution, whatever a unit wrote before.
template <Trouveur T, Usage U>
void DeductionsSur<T, U>::PoseReduites() {
  T::ChaqueReduite([this](int cellule, int symbole) { PoseSolution(cellule, symbole); });
}

template <Trouveur T, Usage U>
void DeductionsSur<T, U>::PoseSolution(int cellule, int symbole) {
  aRemplir_ |= usage_.Vide(cellule);
  T::PoseSolution(cellule, symbole);
}

// One sweep: block, row, column of each number; units that can only give nothing again are left out.
template <Trouveur T, Usage U>
bool DeductionsSur<T, U>::Balaye() {
  bool change = false;
  for (int u = T::UniteSale(0); u >= 0 && !Arrete(); u = T::UniteSale(u + 1)) change |= TestSerie(u);
  return change;
}

// Hidden singles, which take nothing, locked candidates, hidden sets, naked sets of every size, these on the
// candidates of the moment.
template <Trouveur T, Usage U>
bool DeductionsSur<T, U>::TestSerie(int u) {
  bool change = false;
  auto reste = T::Reste(u);
  T::ChaqueSeule(u, reste, [&](int symbole, int place) { PoseSeule(u, symbole, T::Cellule(u, place)); });
  T::ChaqueConfinee(u, reste, [&](const Trouvaille<Bits>& t) {
    change = true;
    RetireConfinee(u, t);
  });
  T::ChaqueCachee(u, reste, [&](const Trouvaille<Bits>& t) {
    change = true;
    GardeCachee(u, t);
  });
  T::ChaqueNue(u, reste, [&](const Trouvaille<Bits>& t) {
    change = true;
    RetireNue(u, t);
  });
  return change;
}

template <Trouveur T, Usage U>
void DeductionsSur<T, U>::PoseSeule(int u, int symbole, int cellule) {
  PoseSolution(cellule, symbole);
  NoteFait(cellule, NoteArgument({.genre = Genre::kSeule, .type = TypeDe(u)}));
}

// The symbol goes from the rest of the other unit.
template <Trouveur T, Usage U>
void DeductionsSur<T, U>::RetireConfinee(int u, const Trouvaille<Bits>& t) {
  const int symbole = Premier(t.symboles);
  Argument argument = De(Genre::kInference, u);
  argument.symbole = symbole;
  const std::uint32_t note = NoteArgument(argument, t.lieux);
  Chaque(t.perdants, [&](int place) {
    const int cellule = T::Cellule(t.unite, place);
    Change(T::Enleve(cellule, symbole));
    NoteFait(cellule, note);
  });
}

// The cells keep nothing but the set.
template <Trouveur T, Usage U>
void DeductionsSur<T, U>::GardeCachee(int u, const Trouvaille<Bits>& t) {
  Argument argument = De(Genre::kCachee, u);
  argument.fois = static_cast<std::int16_t>(t.fois);
  const std::uint32_t note = NoteArgument(argument, t.symboles, t.lieux);
  NoteEnsemble(t.symboles);
  Chaque(t.perdants, [&](int place) {
    const int cellule = T::Cellule(u, place);
    const Bits exclus = T::HorsDe(cellule, t.symboles);
    T::Remplace(cellule, t.symboles);
    NoteFait(cellule, note, exclus);
  });
}

// The set goes from the other cells of the unit.
template <Trouveur T, Usage U>
void DeductionsSur<T, U>::RetireNue(int u, const Trouvaille<Bits>& t) {
  Argument argument = De(Genre::kNue, u);
  argument.symbole = t.texte;
  const std::uint32_t note = NoteArgument(argument, t.symboles, t.lieux);
  NoteEnsemble(t.symboles);
  Chaque(t.perdants, [&](int place) {
    const int cellule = T::Cellule(u, place);
    Change(T::EnleveNue(cellule, t));
    NoteFait(cellule, note);
  });
}

// The N by N figures: k units of one kind that hold a symbol only in the same set of units of another kind.
// The symbol goes from those other units outside the figure. Symbols don't touch each other: each one's
// figures are found on its places as they stand when it comes to it. Only where they are written down do they
// act in the order of discovery: kind, unit, symbol, other kind.
template <Trouveur T, Usage U>
bool DeductionsSur<T, U>::NxN() {
  bool change = false;
  T::ChaqueFigure([&](const Figure& figure) { change |= Retient(figure); });
  if constexpr (U::kFaits) {
    std::ranges::sort(figures_, {}, &Figure::Ordre);
    for (const Figure& figure : figures_) change |= RetireFigure(figure);
    figures_.clear();
  }
  return change;
}

template <Trouveur T, Usage U>
bool DeductionsSur<T, U>::Retient(const Figure& figure) {
  if constexpr (!U::kFaits) return RetireFigure(figure);
  bool retire = false;
  ChaquePerte(figure, [&](int, const Bits&) { retire = true; });
  if (retire) figures_.push_back(figure);
  return false;
}

template <Trouveur T, Usage U>
bool DeductionsSur<T, U>::RetireFigure(const Figure& figure) {
  bool change = false;
  std::uint32_t note = 0;
  ChaquePerte(figure, [&](int u, const Bits& perdants) {
    if (!change) {
      note = NoteArgument(
          {.genre = Genre::kFigure, .type = figure.type, .type2 = figure.type2, .symbole = figure.symbole},
          figure.unites, figure.cle);
      NoteEnsemble(figure.unites);
    }
    change = true;
    Chaque(perdants, [&](int place) {
      const int cellule = T::Cellule(u, place);
      Change(T::Enleve(cellule, figure.symbole));
      NoteFait(cellule, note);
    });
  });
  return change;
}

// Calls f with each unit to which the figure is confined that has places outside it, and these.
template <Trouveur T, Usage U>
template <class F>
void DeductionsSur<T, U>::ChaquePerte(const Figure& figure, F f) const {
  const Bits dedans = T::Dedans(figure);
  Chaque(figure.cle, [&](int v) {
    const int u = Unite(figure.type2, v);
    const Bits perdants = T::Places(u, figure.symbole) & ~dedans;
    if (!Vide(perdants)) f(u, perdants);
  });
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR

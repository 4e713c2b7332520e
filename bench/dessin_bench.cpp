// What the screen costs after a keystroke, without what the game costs: the board's records are written as
// the game writes them after an entry, whole, and the window shows them. Beside it the same with one line
// edit a box, each of which is written too. Run it with QT_QPA_PLATFORM=offscreen.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QScrollArea>
#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "qt/application.h"
#include "qt/fenetre_qt.h"
#include "qt/mesure.h"
#include "qt/plateau_qt.h"
#include "qt/systeme_qt.h"
#include "shell/programme.h"

namespace sudoku::bench {
namespace {

constexpr Twips kPas = 390;

std::map<int, double> dessin;  // seconds a redraw, by N: what the line edits are compared with

Texte Symboles(int N) {
  Texte symboles;
  for (int p = 0; p < N; ++p) symboles += static_cast<char32_t>(0x4E00 + p);
  return symboles;
}

// A board half full, its first box alternating between two symbols.
const Texte& Contenu(const Texte& un, const Texte& autre, const Texte& vide, int i, bool pair) {
  if (i == 1) return pair ? un : autre;
  return i % 2 == 0 ? un : vide;
}

double ParTour(const benchmark::State& state, double debut, double fin) {
  return (fin - debut) / static_cast<double>(state.iterations());
}

double Secondes() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void Dessin(benchmark::State& state, int N) {
  SystemeQt systeme;
  Programme programme(systeme);
  systeme.Execute([&] { programme.Demarre(U""); });
  Texte symboles = Symboles(N);
  systeme.Execute([&] {
    programme.Deroulement().JeuVierge(symboles);
    programme.Principale().plateau.SetFocus(1);
  });
  Plateau& plateau = programme.Principale().plateau;
  plateau.Change = nullptr;
  const Texte un(1, symboles.front());
  const Texte autre(1, symboles.back());
  const Texte vide;
  bool pair = false;
  const auto frappe = [&] {
    pair = !pair;
    systeme.Execute([&] {
      for (int i = 1; i <= plateau.Cases(); ++i) {
        plateau.Text(i, Contenu(un, autre, vide, i, pair));
        plateau.Couleurs(i, i % 2 == 0 ? kGris : kBlanc, kNoir);
        plateau.Acces(i, false, true);
      }
      plateau.Reecrit();
    });
    QApplication::processEvents();
  };
  frappe();
  const double debut = Secondes();
  for (auto _ : state) frappe();
  dessin[N] = ParTour(state, debut, Secondes());
}

void DessinParChamps(benchmark::State& state, int N) {
  QScrollArea vue;
  auto* fond = new QWidget;
  std::vector<QLineEdit*> champs(1, nullptr);
  for (int i = 0; i < N * N; ++i) {
    auto* champ = new QLineEdit(fond);
    champ->setGeometry(Pixels(240 + i % N * kPas), Pixels(600 + i / N * kPas), 25, 25);
    champ->setAlignment(Qt::AlignCenter);
    champs.push_back(champ);
  }
  fond->resize(Pixels(N * kPas + 600), Pixels(N * kPas + 1200));
  vue.setWidget(fond);
  vue.resize(800, 700);
  vue.show();
  const QString un = QStringLiteral("一");
  const QString autre = QStringLiteral("二");
  bool pair = false;
  const auto frappe = [&] {
    pair = !pair;
    for (int i = 1; i <= N * N; ++i) {
      QLineEdit& champ = *champs[static_cast<std::size_t>(i)];
      champ.setText(i == 1 ? (pair ? un : autre) : i % 2 == 0 ? un : QString());
      QPalette palette = champ.palette();
      palette.setColor(QPalette::Base, CouleurQt(i % 2 == 0 ? kGris : kBlanc));
      palette.setColor(QPalette::Text, Qt::black);
      champ.setPalette(palette);
      champ.setReadOnly(false);
      champ.setFocusPolicy(Qt::StrongFocus);
    }
    QApplication::processEvents();
  };
  frappe();
  const double debut = Secondes();
  for (auto _ : state) frappe();
  state.counters["rapport"] = ParTour(state, debut, Secondes()) / dessin[N];
}

}  // namespace
}  // namespace sudoku::bench

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  sudoku::PrepareApplication(application);
  benchmark::Initialize(&argc, argv);
  using Mesure = void (*)(benchmark::State&, int);
  for (const int N : {9, 25, 81, 169}) {
    for (const auto& [nom, mesure] : {std::pair<const char*, Mesure>{"Dessin", sudoku::bench::Dessin},
                                      {"DessinParChamps", sudoku::bench::DessinParChamps}}) {
      benchmark::RegisterBenchmark((nom + ("/" + std::to_string(N))).c_str(), [N, mesure = mesure](
                                                                                  benchmark::State& state) {
        mesure(state, N);
      })->Unit(benchmark::kMicrosecond);
    }
  }
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

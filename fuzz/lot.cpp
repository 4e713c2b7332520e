// What sudoku-lot does with its lines. The input: a byte for the command, one for the symbols, one for the
// options, the lines. Whatever they are: no deduction contradicts the only solution of a grid.
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <span>

#include "cible.h"
#include "grid/grille_texte.h"
#include "lot/expliquer.h"
#include "lot/grille.h"
#include "lot/lignes.h"
#include "lot/verifier.h"
#include "octets.h"
#include "solver/auto_driver.h"

namespace sudoku::fuzz {
namespace {

constexpr TexteVue kSymboles[] = {U"123456789", U"1234", U"0123456789ABCDEF", U"aAbB",     U"ABCDEFGHI", U"5",
                                  U"1111",      U". 0#", U"Σσς🙂",       U"-.0 _|+*é"};

// With few cells open there are few levels of suppositions, and so few passes between two boxes.
constexpr int kVidesMax = 30;
constexpr int kBoitesMax = 5;

// Ends runs that open too many boxes.
class Impatient : public PlateauAuto {
 public:
  struct Assez {};
  void Affiche() override {}
  void Message(TexteVue) override {
    if (++messages_ > kBoitesMax) throw Assez();
  }

 private:
  int messages_ = 0;
};

auto Vides(const GameState& jeu) {
  return std::ranges::count(std::span(jeu.VmGrille.Donnees().saisie).subspan(1), kVide);
}

// As `resoudre`.
class Resolveur : public lot::Ouvrier {
 public:
  Resolveur(const lot::Appel& appel, Lecture lecture) : appel_(appel), lecture_(lecture) {}
  void Traite(std::string_view champ, lot::Reponse& reponse) override {
    GameState jeu;
    lot::LecteurGrille lecteur(jeu, appel_.symboles);
    if (lecteur.Lit(champ)) return;
    jeu.VgEtat = kJeu;
    Evaluateur evaluateur(jeu);
    Impatient plateau;
    try {
      AutoDriver(jeu, evaluateur, plateau, lecture_)
          .JeuAuto(true, !appel_.deduction && Vides(jeu) <= kVidesMax);
    } catch (const Impatient::Assez&) {
      return;
    }
    if (jeu.VsResolu && Vides(jeu) > 0) reponse.alerte = "résolue et incomplète";
  }

 private:
  const lot::Appel& appel_;
  Lecture lecture_;
};

// As `verifier`, which counts without bound, where few cells are open.
class Verificateur : public lot::Ouvrier {
 public:
  explicit Verificateur(const lot::Appel& appel)
      : lecteur_(jeu_, appel.symboles), ouvrier_(lot::FabriqueVerifier(appel)) {}
  void Traite(std::string_view champ, lot::Reponse& reponse) override {
    if (lecteur_.Lit(champ) || Vides(jeu_) <= kVidesMax) ouvrier_->Traite(champ, reponse);
  }

 private:
  GameState jeu_;
  lot::LecteurGrille lecteur_;
  std::unique_ptr<lot::Ouvrier> ouvrier_;
};

std::unique_ptr<lot::Ouvrier> Choisit(int commande, const lot::Appel& appel) {
  if (commande < 2)
    return std::make_unique<Resolveur>(appel, commande == 0 ? Lecture::kTout : Lecture::kContenus);
  if (commande == 2) return std::make_unique<Verificateur>(appel);
  return lot::FabriqueExpliquer(appel);
}

void ParLignes(std::string_view octets, lot::Ouvrier& ouvrier) {
  static const int fd = ::memfd_create("lignes", MFD_CLOEXEC);
  static lot::Lignes lignes([] {});
  if (::ftruncate(fd, 0) != 0 || ::pwrite(fd, octets.data(), octets.size(), 0) < 0) return;
  lignes.Ouvre("/proc/self/fd/" + std::to_string(fd));
  while (const auto ligne = lignes.Suivante()) {
    lot::Reponse reponse;
    ouvrier.Traite(ligne->champ, reponse);
    if (!reponse.alerte.empty()) Echoue(std::string(ligne->champ) + " : " + reponse.alerte);
  }
}

// As `importer`: what was read stands in the grid, and reads back from how it is written.
void Importe(std::string_view octets, TexteVue symboles) {
  const auto contenus = LitGrilleTexte(DepuisUtf8(octets), symboles);
  if (!contenus) return;
  if (contenus->size() != symboles.size() * symboles.size()) Echoue("importée, mais pas N*N cases");
  if (Contient(symboles, U".")) return;  // then an empty cell has no sign of its own
  if (LitGrilleTexte(EcritGrilleTexte(*contenus), symboles) != contenus) Echoue("importée, ne se relit pas");
}

}  // namespace

void Joue(std::string_view octets) {
  Octets entree(octets);
  const int commande = entree.Tire(5);
  lot::Appel appel;
  appel.symboles = kSymboles[entree.Tire(static_cast<int>(std::size(kSymboles)))];
  const int options = entree.Tire(8);
  appel.passes = 1 + options % 2;
  appel.texte = options / 2 % 2 == 1;
  appel.deduction = options / 4 == 1;
  if (commande == 4) return Importe(entree.Reste(), appel.symboles);
  ParLignes(entree.Reste(), *Choisit(commande, appel));
}

}  // namespace sudoku::fuzz

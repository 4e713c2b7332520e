#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <streambuf>

#include "apps/session.h"
#include "joueur.h"
#include "play/invariants.h"

// A player who does anything, anywhere, for thousands of commands, on grids of side 1, 4 and 9. After each
// command: what the board shows is what the records hold, the mode is a lasting one, no empty cell is judged,
// and a file just saved reads back to the same game.

namespace sudoku {
namespace {

constexpr TexteVue kSymboles[] = {U"5", U"1234", U"123456789", U"aBcd", U"12-4", U"12"};

// The lines of a session, made one by one as the session asks for them. Before each, `verifie` runs.
class Lignes : public std::streambuf {
 public:
  std::function<void()> verifie;
  std::function<std::string()> suivante;
  int restantes = 0;
  std::deque<std::string> dernieres;

 protected:
  int_type underflow() override {
    verifie();
    if (restantes-- == 0) return traits_type::eof();
    ligne_ = suivante() + "\n";
    dernieres.push_back(ligne_);
    if (dernieres.size() > 25) dernieres.pop_front();
    setg(ligne_.data(), ligne_.data(), ligne_.data() + ligne_.size());
    return traits_type::to_int_type(ligne_.front());
  }

 private:
  std::string ligne_;
};

class Joueuse {
 public:
  Joueuse(unsigned graine, int commandes)
      : dossier_(NouveauDossier()), hasard_(graine), graine_(graine), entree_(&lignes_) {
    lignes_.restantes = commandes;
    lignes_.verifie = [this] { Verifie(); };
    lignes_.suivante = [this] {
      const bool libre = session_.LeSysteme().Dessus() == nullptr;
      const std::string commande = Commande();
      if (libre) commande_ = commande;
      return commande;
    };
  }
  ~Joueuse() { std::filesystem::remove_all(dossier_); }

  void Joue() { session_.Joue(); }
  // Has `quoi` called each time that a tenth of the commands is done.
  void AChaqueDixieme(std::function<void()> quoi) {
    dixieme_ = std::move(quoi);
    part_ = lignes_.restantes / 10;
  }
  int Fins() const { return fins_; }
  int Relectures() const { return relectures_; }
  int Modales() const { return modales_; }

 private:
  GameState& Jeu() { return session_.LeProgramme().Principale().Jeu(); }
  int Tire(int n) { return std::uniform_int_distribution<int>(0, n - 1)(hasard_); }
  std::string Un(std::initializer_list<const char*> mots) { return mots.begin()[Tire(int(mots.size()))]; }
  std::string Fichier() { return dossier_ + Un({"/a", "/b.sud", "/c.SUD", "/rien.sud"}); }
  static std::string Guillemets(TexteVue texte) { return VersUtf8(Cite(texte)); }

  // What is done next, some of it impossible.
  std::string Commande() {
    if (!demarree_) {
      demarree_ = true;
      return "start";
    }
    if (Boite* boite = session_.LeSysteme().Dessus(); boite != nullptr && Tire(12) != 0)
      return Reponse(*boite);
    switch (Tire(30)) {
      case 0:
        return "tick";
      case 1:
        return "now \"2026-11-24 10:" + std::to_string(10 + Tire(50)) + ":" + std::to_string(10 + Tire(50)) +
               "\"";
      case 2:
        return "focus " + std::to_string(Tire(83));
      case 3:
        return "key " + std::to_string(36 + Tire(6));
      case 4:
      case 5:
        return "click " + Un({"ChkLightSur", "ChkLightPoss", "ChkForeBlue", "ChkForeRed", "ChkListPoss",
                              "ChkRep", "ChkTips", "BtViewSolution"});
      case 6:
        return Un({"press", "release", "release"}) + " BtViewSolution " + Un({"souris", "espace"});
      case 7:
        return "close FRMHelp";
      case 8:
      case 9:
        return "click " + Un({"MnuStart", "MnuSave", "MnuLoad", "MnuPartie", "MnuScores", "MnuAssist"});
      case 10:
        return "click " + Un({"MnuRestart", "MnuReinit", "MnuSolver", "MnuAbout", "MnuSave", Suppose()});
      case 11:
        return Tire(5) == 0 || Jeu().VgEtat == kSansGrille ? "click MnuInit" : "click MnuStart";
      default:
        return Tape();
    }
  }

  // Suppositions on a side of 9 that holds contradictory entries can take for ever.
  const char* Suppose() { return Jeu().VmTaille <= 4 ? "MnuSolveur2" : "MnuSolver"; }

  // Half of the entries go towards the solution, where one is known, so that games come to their end.
  std::string Tape() {
    const GameState& jeu = Jeu();
    const int cases = jeu.VmGrille.Borne();
    if (cases == 0) return "click MnuInit";
    const bool resolue = jeu.VsResolu && jeu.VmGrilleEtat.Borne() == cases;
    if (resolue && Tire(2) == 0) {
      for (int k = 1; k <= cases; ++k) {
        const Texte& juste = jeu.VmGrilleEtat(k).ValeurSaisie();
        if (jeu.VmGrille(k).ValeurSaisie() != juste)
          return "type " + std::to_string(k) + " " + Guillemets(juste);
      }
    }
    const int i = 1 + Tire(cases);
    Texte texte(1,
                jeu.VmValeurs.empty() ? U'1' : jeu.VmValeurs[std::size_t(Tire(int(jeu.VmValeurs.size())))]);
    const Texte possible = jeu.VmGrille(i).Possible();
    if (Tire(3) != 0 && !possible.empty())
      texte = Texte(1, possible[std::size_t(Tire(int(possible.size())))]);
    if (Tire(12) == 0) texte.clear();
    if (Tire(20) == 0) texte = Texte(possible.substr(0, 2));
    if (Tire(20) == 0)
      texte = Minuscule(texte.empty() ? U'D' : texte[0]) + Texte(U"x").substr(std::size_t(Tire(2)));
    return "type " + std::to_string(i) + " " + Guillemets(texte);
  }

  std::string Reponse(const Boite& boite) {
    switch (boite.genre) {
      case GenreBoite::kMessage:
        return "answer ok";
      case GenreBoite::kQuestion:
        return Tire(4) == 0 ? "answer non" : "answer oui";
      case GenreBoite::kSaisie:
        return Tire(8) == 0 ? "answer annuler"
                            : "answer " + Guillemets(kSymboles[Tire(int(std::size(kSymboles)))]);
      case GenreBoite::kFichier:
        return Tire(6) == 0 ? "answer annuler" : "answer \"" + Fichier() + "\"";
      case GenreBoite::kFenetre:
        break;
    }
    ++modales_;
    switch (Tire(7)) {
      case 0:
        return "edit LstSave " + Guillemets(Tire(2) == 0 ? U"une-partie" : U"Échec ★");
      case 1:
        return "select LstSave " + std::to_string(Tire(4) - 1);
      case 2:
        return "select LstLoad " + std::to_string(Tire(4) - 1);
      case 3:
        return "click BtDel";
      case 4:
        return "dblclick LstLoad";
      default:
        return "key " + Un({"13", "27"});
    }
  }

  void Verifie() {
    if (testing::Test::HasFailure()) {
      lignes_.restantes = 0;
      return;
    }
    if (part_ > 0 && lignes_.restantes % part_ == 0) dixieme_();
    if (session_.LeSysteme().Dessus() != nullptr) return;
    const std::string rompu = invariants_.Rompu();
    EXPECT_EQ(rompu, "");
    VerifieFichier();
    if (Jeu().VgEtat == kTermine && etatAvant_ != kTermine) ++fins_;
    etatAvant_ = Jeu().VgEtat;
    if (!testing::Test::HasFailure()) return;
    std::string dernieres;
    for (const std::string& ligne : lignes_.dernieres) dernieres += ligne;
    ADD_FAILURE() << "graine " << graine_ << ", dernières commandes :\n" << dernieres;
  }

  // After a save that went through, another program loads the file, taking the grid without a game.
  void VerifieFichier() {
    const bool sauve = std::exchange(commande_, "") == "click MnuSave" && Jeu().VgEtat != kSansGrille;
    if (!sauve || Jeu().VmNom.empty()) return;
    ++relectures_;
    Joueur relu;
    relu.Demarre(VersUtf8(Jeu().VmNom));
    const GameState& jeu = relu.Jeu();
    ASSERT_EQ(VersUtf8(jeu.VmValeurs), VersUtf8(Jeu().VmValeurs));
    ASSERT_EQ(jeu.VgParties.size(), Jeu().VgParties.size());
    for (std::size_t i = 1; i < jeu.VgParties.size(); ++i) {
      EXPECT_EQ(VersUtf8(jeu.VgParties[i].Nom), VersUtf8(Jeu().VgParties[i].Nom));
      EXPECT_EQ(VersUtf8(jeu.VgParties[i].Grille), VersUtf8(Jeu().VgParties[i].Grille));
    }
    ASSERT_EQ(jeu.VgScores.size(), Jeu().VgScores.size());
    for (std::size_t i = 1; i < jeu.VgScores.size(); ++i) {
      EXPECT_EQ(VersUtf8(jeu.VgScores[i].Nom), VersUtf8(Jeu().VgScores[i].Nom));
      EXPECT_NEAR(jeu.VgScores[i].Temps, std::max(Jeu().VgScores[i].Temps, 0.0), 0.5 / 86400);
    }
    ASSERT_EQ(jeu.VmGrille.Borne(), Jeu().VmGrille.Borne());
    for (int i = 1; i <= jeu.VmGrille.Borne(); ++i) {
      const ClsPos cellule = Jeu().VmGrille(i);
      const Texte donnee = cellule.Etat() == kDonnee ? cellule.ValeurSaisie().substr(0, 1) : Texte();
      ASSERT_EQ(VersUtf8(jeu.VmGrille(i).ValeurSaisie()), VersUtf8(donnee)) << "case " << i;
      ASSERT_EQ(jeu.VmGrille(i).Etat(), kDonnee) << "case " << i;
    }
  }

  std::string dossier_;
  std::mt19937 hasard_;
  unsigned graine_;
  Lignes lignes_;
  std::istream entree_;
  std::ostream sortie_{nullptr};
  FichiersDisque fichiers_;
  Session session_{entree_, sortie_, fichiers_};
  bool demarree_ = false;
  std::string commande_;  // the last one given with no box open
  Invariants invariants_{session_.LeProgramme()};
  std::int32_t etatAvant_ = kSansGrille;
  int fins_ = 0;
  int relectures_ = 0;
  int modales_ = 0;
  std::function<void()> dixieme_;
  int part_ = 0;
};

class Hasard : public testing::TestWithParam<unsigned> {};

TEST_P(Hasard, LePlateauMontreToujoursLesFiches) {
  Joueuse joueuse(GetParam(), 12000);
  joueuse.Joue();
  // A run that never got anywhere would prove nothing.
  EXPECT_GT(joueuse.Fins(), 10);
  EXPECT_GT(joueuse.Relectures(), 20);
  EXPECT_GT(joueuse.Modales(), 50);
}

INSTANTIATE_TEST_SUITE_P(Graines, Hasard, testing::Values(1U, 2U, 3U, 4U));

long PagesEnMemoire() {
  long taille = 0, presentes = 0;
  std::ifstream("/proc/self/statm") >> taille >> presentes;
  return presentes;
}

// SUDOKU_COMMANDES: how many commands; with more than a few, time and memory of each tenth are worth reading.
TEST(Endurance, LaMemoireNeCroitPas) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "a sanitizer keeps what is freed";
#endif
  const char* const demandees = std::getenv("SUDOKU_COMMANDES");
  Joueuse joueuse(5, demandees == nullptr ? 20000 : std::atoi(demandees));
  std::vector<long> pages;
  auto avant = std::chrono::steady_clock::now();
  joueuse.AChaqueDixieme([&] {
    pages.push_back(PagesEnMemoire());
    const auto maintenant = std::chrono::steady_clock::now();
    std::cout << pages.size() - 1 << "/10 : " << std::chrono::duration<double>(maintenant - avant).count()
              << " s, " << pages.back() << " pages\n";
    avant = maintenant;
  });
  joueuse.Joue();
  ASSERT_EQ(pages.size(), 11U);
  // Room for the allocator: a sixty-fourth, or 1 MiB. One grid of side 9 kept by each save would be more.
  EXPECT_LE(pages[10], pages[3] + std::max(pages[3] / 64, 256L));
}

}  // namespace
}  // namespace sudoku

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <random>

#include "partie.h"

// A player who does anything, anywhere, for thousands of commands. After each command: what the board shows
// is what the records hold, the mode is a lasting one, no empty cell is judged, and a file just saved reads
// back to the same game. What breaks that ends the process, behind the last commands.

namespace sudoku::fuzz {
namespace {

class Joueuse {
 public:
  Joueuse(unsigned graine, int commandes) {
    std::mt19937 hasard(graine);
    for (int i = 0; i < 8 * commandes; ++i) alea_ += static_cast<char>(hasard() % 256);
    octets_ = Octets(alea_);
    partie.Longue(commandes);
  }

 private:
  std::string alea_;
  Octets octets_{alea_};
  FichiersMemoire fichiers_;

 public:
  Partie partie{octets_, fichiers_, "start", true};
};

TEST(Hasard, LePlateauMontreToujoursLesFiches) {
  for (unsigned graine = 1; graine <= 4; ++graine) {
    Joueuse joueuse(graine, 20000);
    joueuse.partie.Joue();
    // A run that never got anywhere would prove nothing.
    EXPECT_GT(joueuse.partie.fins, 10);
    EXPECT_GT(joueuse.partie.relectures, 20);
    EXPECT_GT(joueuse.partie.fenetres, 50);
  }
}

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
  const int commandes = demandees == nullptr ? 20000 : std::atoi(demandees);
  Joueuse joueuse(5, commandes);
  std::vector<long> pages;
  auto debut = std::chrono::steady_clock::now();
  joueuse.partie.avant = [&](int restantes) {
    if (restantes % (commandes / 10) != 0) return;
    pages.push_back(PagesEnMemoire());
    const auto maintenant = std::chrono::steady_clock::now();
    std::cout << pages.size() - 1 << "/10 : " << std::chrono::duration<double>(maintenant - debut).count()
              << " s, " << pages.back() << " pages\n";
    debut = maintenant;
  };
  joueuse.partie.Joue();
  ASSERT_EQ(pages.size(), 11U);
  // Room for the allocator: a sixty-fourth, or 1 MiB. One grid of side 9 kept by each save would be more.
  EXPECT_LE(pages[10], pages[3] + std::max(pages[3] / 64, 256L));
}

}  // namespace
}  // namespace sudoku::fuzz

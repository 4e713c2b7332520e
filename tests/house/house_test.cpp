#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

// The rules on how the code is laid out, read off the files themselves.
namespace {

namespace fs = std::filesystem;
using Noms = std::set<std::string>;

const fs::path kRacine = SUDOKU_RACINE;

// Which folders a folder's files may include besides their own. An arrow takes with it all that the other
// uses.
const std::map<std::string, Noms> kFleches = {
    {"text", {}},
    {"grid", {"text"}},
    {"engine", {"grid"}},
    {"solver", {"engine"}},
    {"platform", {"text"}},
    {"play", {"solver", "platform"}},
    {"storage", {"play"}},
    {"assistant", {"play"}},
    {"shell", {"storage", "assistant", "play"}},
    {"headless", {"platform"}},
    {"qt", {"platform"}},
    {"sudoku", {"qt", "shell"}},
    {"scenario", {"headless", "shell"}},
    {"lot", {"storage"}},
};

// The files of code below a folder.
std::vector<fs::path> Fichiers(const fs::path& dossier) {
  std::vector<fs::path> fichiers;
  for (const auto& entree : fs::recursive_directory_iterator(kRacine / dossier)) {
    if (Noms{".h", ".inc", ".cpp"}.contains(entree.path().extension())) fichiers.push_back(entree.path());
  }
  return fichiers;
}

std::vector<std::string> Lignes(const fs::path& fichier) {
  std::ifstream flux(fichier);
  std::vector<std::string> lignes;
  for (std::string ligne; std::getline(flux, ligne);) lignes.push_back(ligne);
  return lignes;
}

// A folder, and all that its arrows lead to.
void Atteint(const std::string& dossier, Noms& atteints) {
  if (!atteints.insert(dossier).second) return;
  for (const std::string& suivant : kFleches.at(dossier)) Atteint(suivant, atteints);
}

TEST(Maison, InclusionsSelonLesFleches) {
  const std::regex inclusion(R"re(^\s*#\s*include\s*"([^"/]*)(/?)[^"]*")re");
  for (const fs::path& fichier : Fichiers("src")) {
    const std::string dossier = fichier.parent_path().filename();
    ASSERT_TRUE(kFleches.contains(dossier)) << fichier << ": a folder without arrows";
    Noms permis;
    Atteint(dossier, permis);
    for (const std::string& ligne : Lignes(fichier)) {
      std::smatch trouve;
      if (!std::regex_search(ligne, trouve, inclusion)) continue;
      EXPECT_TRUE(trouve.length(2) == 1 && permis.contains(trouve[1])) << fichier << ": " << ligne;
    }
  }
}

TEST(Maison, FichiersCourts) {
  constexpr std::size_t kLignes = 600;
  constexpr std::size_t kLignesMain = 60;
  for (const char* const dossier : {"src", "tests", "bench", "fuzz"}) {
    for (const fs::path& fichier : Fichiers(dossier)) {
      const bool programme = fichier.filename() == "main.cpp";
      EXPECT_LE(Lignes(fichier).size(), programme ? kLignesMain : kLignes) << fichier;
    }
  }
}

}  // namespace

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

// Calls against an arrow go through what the lower folder declares and an upper one fills in. These are all:
// abstract classes, and functions kept in fields.
const Noms kInterfaces = {
    "engine/moteur.h Moteur",           // one engine for each width of sets
    "grid/jeu_vierge.h PlateauVierge",  // the board, as JeuVierge sees it: prompt, message, lay out, evaluate
    "grid/game_state.h Message",        // the box of Valeur
    "play/voisins.h APropos",           // the about box
    "play/voisins.h Assistant",         // the assistant, as board and clock see it
    "play/voisins.h Stockage",          // files and scores, as menus and the end of a game see them
    "solver/auditeur.h Auditeur",        // who follows a run as it goes
    "solver/auto_driver.h PlateauAuto",  // the board, as JeuAuto sees it: message, Affiche
    "solver/travail.h Travail",          // two ways to search one grid
    "storage/game_file.h DialogueFichier",
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

std::string Relatif(const fs::path& fichier) {
  return fs::relative(fichier, kRacine / "src").string();
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
    ASSERT_TRUE(kFleches.contains(dossier)) << Relatif(fichier) << ": a folder without arrows";
    Noms permis;
    Atteint(dossier, permis);
    for (const std::string& ligne : Lignes(fichier)) {
      std::smatch trouve;
      if (!std::regex_search(ligne, trouve, inclusion)) continue;
      EXPECT_TRUE(trouve.length(2) == 1 && permis.contains(trouve[1])) << Relatif(fichier) << ": " << ligne;
    }
  }
}

TEST(Maison, QtResteDansSonDossier) {
  const std::regex inclusion(R"(^\s*#\s*include\s*<Q)");
  for (const fs::path& fichier : Fichiers("src")) {
    const std::string nom = Relatif(fichier);
    if (nom.starts_with("qt/") || nom.starts_with("sudoku/")) continue;
    for (const std::string& ligne : Lignes(fichier)) {
      EXPECT_FALSE(std::regex_search(ligne, inclusion)) << nom << ": " << ligne;
    }
  }
}

TEST(Maison, AppelsContreLesFleches) {
  const std::regex classe(R"(^\s*(?:class|struct)\s+(\w+)[^;]*\{)");
  const std::regex virtuelle(R"(^\s*virtual\b.*=\s*0\s*;)");
  const std::regex fonction(
      R"(^\s*std::function<[^;]*>\s+(\w+)[^;()]*;|^\s*std::function<[^;]*>\s+(\w+)\s*=)");
  Noms trouvees;
  for (const fs::path& fichier : Fichiers("src")) {
    const std::string nom = Relatif(fichier);
    const std::string dossier = fichier.parent_path().filename();
    // The platform is an interface as a whole; above the logic there is nobody to call up to.
    const Noms dehors = {"platform", "qt", "headless", "sudoku", "lot", "scenario"};
    if (dehors.contains(dossier) || fichier.extension() != ".h") continue;
    std::string courante;
    for (const std::string& ligne : Lignes(fichier)) {
      std::smatch trouve;
      if (std::regex_search(ligne, trouve, classe)) courante = trouve[1];
      if (std::regex_search(ligne, virtuelle)) trouvees.insert(std::string(nom).append(" ").append(courante));
      if (std::regex_search(ligne, trouve, fonction)) {
        const std::string champ = trouve[1].matched ? trouve[1] : trouve[2];
        trouvees.insert(std::string(nom).append(" ").append(champ));
      }
    }
  }
  EXPECT_EQ(trouvees, kInterfaces);
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

#include "sudoku/appel.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

#include "qt/capture.h"
#include "text/texte.h"

namespace sudoku {
namespace {

constexpr std::string_view kCapture = "--capture";
constexpr const char* kUsage =
    "Usage : sudoku [FICHIER.sud]\n        sudoku --capture IMAGE.png|.svg|.pdf [FICHIER.sud]\n";

constexpr const char* kAide =
    "Usage : sudoku [FICHIER.sud]\n"
    "        sudoku --capture IMAGE.png|.svg|.pdf [FICHIER.sud]\n"
    "\n"
    "Joue et résout des grilles de Sudoku de toutes tailles.\n"
    "\n"
    "  --capture IMAGE   dessine la grille dans IMAGE et s'arrête\n"
    "  --help            écrit cette aide et s'arrête\n"
    "  --version         écrit la version et s'arrête\n"
    "\n"
    "Les touches du jeu : F1 dans la fenêtre. Tout le reste se lit dans man sudoku.\n";
constexpr const char* kVersion = "sudoku " SUDOKU_VERSION "\n";

std::optional<Appel> Refuse(const std::string& raison) {
  std::fputs(("sudoku : " + Montrable(raison) + "\n" + kUsage).c_str(), stderr);
  return std::nullopt;
}

// Two names of one file.
bool Memes(const char* un, const char* autre) {
  std::error_code code;
  return std::string_view(un) == autre || std::filesystem::equivalent(un, autre, code);
}

}  // namespace

std::optional<Appel> LitAppel(int argc, const char* const* argv) {
  std::span mots(argv, static_cast<std::size_t>(argc));
  mots = mots.subspan(std::min<std::size_t>(1, mots.size()));
  const auto passe = [&] {
    const char* const mot = mots.front();
    mots = mots.subspan(1);
    return mot;
  };
  Appel appel;
  if (mots.size() == 1 && std::string_view("--help") == mots.front()) appel.reponse = kAide;
  if (mots.size() == 1 && std::string_view("--version") == mots.front()) appel.reponse = kVersion;
  if (appel.reponse != nullptr) return appel;
  if (!mots.empty() && mots.front() == kCapture) {
    passe();
    if (mots.empty()) return Refuse("il manque l'image");
    appel.image = passe();
    if (!FormeConnue(appel.image)) {
      return Refuse(std::string(appel.image) + " : le nom d'une image finit par .png, .svg ou .pdf");
    }
  }
  if (appel.image != nullptr && !DepuisUtf8Strict(appel.image)) {
    return Refuse("le nom de l'image n'est pas de l'UTF-8");
  }
  if (!mots.empty()) appel.fichier = passe();
  if (!mots.empty()) return Refuse("un seul fichier à la fois");
  if (appel.fichier != nullptr && *appel.fichier == '-') {
    return Refuse("option inconnue : " + std::string(appel.fichier));
  }
  if (appel.image != nullptr && appel.fichier != nullptr && Memes(appel.image, appel.fichier)) {
    return Refuse("l'image et la partie sont le même fichier");
  }
  return appel;
}

}  // namespace sudoku

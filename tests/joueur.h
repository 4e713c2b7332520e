#pragma once

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "headless/systeme_sans_ecran.h"
#include "platform/fichiers_disque.h"
#include "shell/programme.h"

namespace sudoku {

inline std::string LitOctets(const std::string& chemin) {
  std::ostringstream octets;
  octets << std::ifstream(chemin, std::ios::binary).rdbuf();
  return octets.str();
}

inline void EcritOctets(const std::string& chemin, const std::string& octets) {
  std::ofstream(chemin, std::ios::binary) << octets;
}

// A new folder, in memory where the machine has such a place: thousands of flushes wear a disk.
inline std::string NouveauDossier() {
  namespace fs = std::filesystem;
  const fs::path racine = fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
  std::string modele = (racine / "sudoku-XXXXXX").string();
  return mkdtemp(modele.data());
}

// The whole game on the real files, played by a test: boxes are answered from `reponses` in turn, and by
// their default button when none is left. What opened stands in Sortie().
class Joueur {
 public:
  Joueur() : systeme_(sortie_, disque_, [this] { return Repond(); }), programme_(systeme_) {}

  void Demarre(const std::string& chemin) { programme_.Demarre(DepuisUtf8("\"" + chemin + "\"")); }
  // The user makes `texte` of the box of cell i.
  void Tape(int i, TexteVue texte) { programme_.Principale().plateau.Saisit(i, texte); }
  void Clique(const char* article) { programme_.Principale().TrouveArticle(article)->Click(); }
  GameState& Jeu() { return programme_.Jeu(); }
  std::string Sortie() const { return sortie_.str(); }
  bool AVu(const std::string& texte) const { return Sortie().find(texte) != std::string::npos; }

  std::deque<std::function<void(Boite&)>> reponses;

 private:
  bool Repond() {
    Boite* const boite = systeme_.Dessus();
    if (boite == nullptr || boite->fenetre == nullptr || reponses.empty()) return false;
    const auto reponse = reponses.front();
    reponses.pop_front();
    reponse(*boite);
    return true;
  }

  std::ostringstream sortie_;
  FichiersDisque disque_;
  SystemeSansEcran systeme_;
  Programme programme_;
};

// Answers.
inline void ChoisitPartie(Boite& boite, int position) {
  boite.fenetre->Trouve("LstLoad")->Selectionne(position);
  boite.fenetre->Trouve("BtOK")->Clique();
}

inline void NommePartie(Boite& boite, TexteVue nom) {
  boite.fenetre->Trouve("LstSave")->Edite(nom);
  boite.fenetre->Trouve("BtOK")->Clique();
}

}  // namespace sudoku

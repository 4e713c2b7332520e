#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/fichiers.h"

namespace sudoku::fuzz {

// A disk in memory, which can be told to fail.
class FichiersMemoire : public Fichiers {
 public:
  std::string Lit(TexteVue chemin) override;
  std::unique_ptr<FichierEcrit> Ouvre(TexteVue chemin) override;
  bool Copie(TexteVue de, TexteVue vers) override;
  void Supprime(TexteVue chemin) override;
  bool EstFichier(TexteVue chemin) override { return disque_.contains(Texte(chemin)); }
  std::vector<FichierVu> Commencant(TexteVue debut) override;
  Texte DossierCourant() override { return U"/"; }

  std::string& operator[](TexteVue chemin) { return disque_[Texte(chemin)]; }
  // The `rang`-th operation from now fails, all others succeed; 0: none fails.
  void Panne(int rang) { panne_ = rang; }
  // The file that was last written to its end since this was last asked.
  std::optional<Texte> PrendSauve() { return std::exchange(sauve_, std::nullopt); }

 private:
  class Ecriture;
  // Throws Erreur 75 where this operation is the one to fail.
  void Opere();

  std::map<Texte, std::string> disque_;
  int panne_ = 0;
  std::optional<Texte> sauve_;
};

}  // namespace sudoku::fuzz

#pragma once

#include "platform/fichiers.h"

namespace sudoku {

// The files of the machine, which every window system uses. Paths go to the machine as VersChemin
// makes them.
class FichiersDisque : public Fichiers {
 public:
  std::string Lit(TexteVue chemin) override;
  std::unique_ptr<FichierEcrit> Ouvre(TexteVue chemin) override;
  bool Copie(TexteVue de, TexteVue vers) override;
  void Supprime(TexteVue chemin) override;
  bool EstFichier(TexteVue chemin) override;
  std::vector<FichierVu> Commencant(TexteVue debut) override;
  Texte DossierCourant() override;
};

}  // namespace sudoku

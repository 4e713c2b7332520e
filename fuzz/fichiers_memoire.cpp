#include "fichiers_memoire.h"

#include "platform/erreur.h"

namespace sudoku::fuzz {

class FichiersMemoire::Ecriture : public FichierEcrit {
 public:
  Ecriture(FichiersMemoire& fichiers, TexteVue chemin, bool neuf)
      : fichiers_(fichiers), chemin_(chemin), contenu_(fichiers[chemin]), neuf_(neuf) {}
  bool Neuf() const override { return neuf_; }
  std::int64_t Taille() override { return static_cast<std::int64_t>(contenu_.size()); }
  void Coupe(std::int64_t taille) override {
    fichiers_.Opere();
    contenu_.resize(static_cast<std::size_t>(taille));
  }
  void Ecrit(std::string_view octets) override {
    contenu_ += octets.substr(0, octets.size() / 2);
    fichiers_.Opere();
    contenu_ += octets.substr(octets.size() / 2);
  }
  void VideSurDisque() override { fichiers_.Opere(); }
  void Ferme() override {
    fichiers_.Opere();
    fichiers_.sauve_ = chemin_;
  }

 private:
  FichiersMemoire& fichiers_;
  Texte chemin_;
  std::string& contenu_;
  bool neuf_;
};

void FichiersMemoire::Opere() {
  if (panne_ > 0 && --panne_ == 0) throw Erreur(kAccesFichier);
}

std::string FichiersMemoire::Lit(TexteVue chemin) {
  Opere();
  if (!EstFichier(chemin)) throw Erreur(kFichierIntrouvable);
  return (*this)[chemin];
}

std::unique_ptr<FichierEcrit> FichiersMemoire::Ouvre(TexteVue chemin) {
  Opere();
  const bool neuf = !EstFichier(chemin);
  return std::make_unique<Ecriture>(*this, chemin, neuf);
}

bool FichiersMemoire::Copie(TexteVue de, TexteVue vers) {
  Opere();
  if (!EstFichier(de)) throw Erreur(kAccesFichier);
  return disque_.try_emplace(Texte(vers), (*this)[de]).second;
}

void FichiersMemoire::Supprime(TexteVue chemin) {
  Opere();
  if (disque_.erase(Texte(chemin)) == 0) throw Erreur(kAccesFichier);
}

std::vector<FichierVu> FichiersMemoire::Commencant(TexteVue debut) {
  std::vector<FichierVu> vus;
  for (const auto& [chemin, contenu] : disque_) {
    if (!chemin.starts_with(debut)) continue;
    vus.push_back({chemin, static_cast<std::int64_t>(contenu.size()), static_cast<std::int64_t>(vus.size())});
  }
  return vus;
}

}  // namespace sudoku::fuzz

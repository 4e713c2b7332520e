#include "lot/demontrer.h"

#include "lot/deroule.h"
#include "lot/grille.h"
#include "lot/html.h"
#include "lot/recit.h"
#include "lot/repondeur.h"

namespace sudoku::lot {
namespace {

std::unique_ptr<Recit> FabriqueRecit(Format format) {
  if (format == Format::kHtml) return FabriqueRecitHtml();
  return format == Format::kJson ? FabriqueRecitJson() : FabriqueRecitTexte();
}

class Demontrer : public Ouvrier, private Auditeur {
 public:
  explicit Demontrer(const Appel& appel)
      : supposer_(appel.supposer), lecteur_(jeu_, appel.symboles), recit_(FabriqueRecit(appel.format)) {}

  void Traite(std::string_view champ, Reponse& reponse) override {
    if (auto erreur = lecteur_.Lit(champ)) {
      reponse.erreur = std::move(*erreur);
      return;
    }
    reponse_ = &reponse;
    etape_ = {reponse.rang, 0, 0};
    jeu_.VgEtat = kJeu;
    recit_->Commence(reponse.rang, jeu_.VmGrille, champ, reponse.sortie);
    driver_.JeuAuto(true, supposer_);
    const Bilan bilan{repondeur_.Final(), driver_.DerniersComptes()};
    recit_->Finit(reponse.rang, jeu_.VmGrille, bilan, reponse.sortie);
  }

 private:
  void Remplit(const Grille& grille, int verdict, std::span<const Remplissage> cases) override {
    ++etape_.etape;
    recit_->Remplit(etape_, grille, verdict, cases, reponse_->sortie);
    reponse_->coule(*reponse_);
  }
  void Reprend() override { recit_->Reprend(etape_, reponse_->sortie); }
  void Suppose(int cellule, Code symbole, std::size_t niveau) override {
    ++etape_.etape;
    etape_.niveau = niveau;
    recit_->Suppose(etape_, cellule, symbole, reponse_->sortie);
  }
  void Refute(int cellule, Code symbole, std::size_t niveau) override {
    ++etape_.etape;
    etape_.niveau = niveau;
    recit_->Refute(etape_, cellule, symbole, reponse_->sortie);
  }

  bool supposer_;
  GameState jeu_;
  Evaluateur evaluateur_{jeu_};
  Repondeur repondeur_;
  AutoDriver driver_{jeu_, evaluateur_, repondeur_, Lecture::kContenus, this};
  LecteurGrille lecteur_;
  std::unique_ptr<Recit> recit_;
  Etape etape_;
  Reponse* reponse_ = nullptr;  // of the line that is worked on
};

}  // namespace

int Demontre(const Appel& appel) {
  const bool page = appel.format == Format::kHtml;
  return DeroulePage(
      appel, [&] { return std::make_unique<Demontrer>(appel); }, page ? PageAvant() : "",
      page ? PageApres() : "");
}

}  // namespace sudoku::lot

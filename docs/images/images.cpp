// Draws the pictures of the manual with the game's own windows, from a list on standard input:
//
//   ouvre FICHIER      starts the game with a game file
//   menu NOM           runs a command; questions are answered by Yes
//   coche NOM          clicks a check box of the assistant
//   case I             gives the focus to cell I
//   tape I SYMBOLE     types into cell I
//   tic S              the clock ticks, S seconds after the start
//   modale IMAGE       the next modal window is drawn into IMAGE and left by its default button
//   image IMAGE        draws the main window and, beside it, the assistant if it is open

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <vector>

#include "qt/application.h"
#include "qt/capture.h"
#include "qt/fenetre_qt.h"
#include "qt/texte_qt.h"
#include "shell/programme.h"

namespace sudoku {
namespace {

constexpr int kMarge = 12;

class SystemePourImages : public SystemeSansJoueur {
 public:
  bool Question(TexteVue) override { return true; }
  // Time stands still, so that a picture drawn again is the same.
  std::int64_t Maintenant() override { return heure_; }
  void MetHeure(std::int64_t secondes) { heure_ = 1000 * secondes; }
  void Ajoute(Fenetre& fenetre) override {
    toutes_.push_back(&fenetre);
    SystemeSansJoueur::Ajoute(fenetre);
  }
  void MontreModale(Fenetre& fenetre) override {
    if (!modale_.empty()) {
      FenetreQt vue(fenetre, *this, nullptr, {});
      vue.Synchronise();
      if (!DessineDansFichier(vue, QString::fromStdString(modale_))) std::cerr << modale_ << '\n';
      modale_.clear();
    }
    SystemeSansJoueur::MontreModale(fenetre);
  }

  void DessineProchaineModale(std::string image) { modale_ = std::move(image); }
  Fenetre* Assistant() {
    for (Fenetre* fenetre : toutes_) {
      if (fenetre->Name == "FRMHelp") return fenetre;
    }
    return nullptr;
  }

 private:
  std::vector<Fenetre*> toutes_;
  std::string modale_;
  std::int64_t heure_ = 0;
};

class Images {
 public:
  bool Execute(const std::string& ligne) {
    std::istringstream mots(ligne);
    std::string nom, mot, symbole;
    mots >> nom >> mot >> symbole;
    const std::map<std::string, std::function<void()>> commandes = {
        {"ouvre", [&] { Ouvre(mot); }},
        {"menu", [&] { Principale().TrouveArticle(mot)->Click(); }},
        {"coche", [&] { systeme_->Assistant()->Trouve(mot)->Clique(); }},
        {"case", [&] { Principale().plateau.SetFocus(std::stoi(mot)); }},
        {"tape",
         [&] { Principale().plateau.Saisit(std::stoi(mot), DepuisQt(QString::fromStdString(symbole))); }},
        {"tic", [&] { Tic(std::stoi(mot)); }},
        {"modale", [&] { systeme_->DessineProchaineModale(mot); }}};
    if (nom == "image") return Dessine(QString::fromStdString(mot));
    const auto commande = commandes.find(nom);
    if (commande == commandes.end()) return false;
    systeme_->Execute(commande->second);
    return true;
  }

 private:
  Fenetre& Principale() { return programme_->Principale(); }

  void Ouvre(const std::string& fichier) {
    programme_->Demarre(DepuisQt('"' + QString::fromStdString(fichier) + '"'));
  }

  void Tic(int secondes) {
    systeme_->MetHeure(secondes);
    Principale().TrouveMinuterie("Tmr")->Timer();
  }

  QPixmap Vue(const Fenetre& fenetre) {
    FenetreQt& vue = *systeme_->FenetreDe(fenetre);
    vue.MetSansEcran();
    return vue.grab();
  }

  bool Dessine(const QString& image) {
    const QPixmap plateau = Vue(Principale());
    Fenetre* assistant = systeme_->Assistant();
    if (assistant == nullptr || !assistant->Visible) return plateau.save(image);
    const QPixmap aide = Vue(*assistant);
    QPixmap ensemble(plateau.width() + kMarge + aide.width(), std::max(plateau.height(), aide.height()));
    ensemble.fill(Qt::white);
    QPainter p(&ensemble);
    p.drawPixmap(0, 0, plateau);
    p.drawPixmap(plateau.width() + kMarge, 0, aide);
    p.end();
    return ensemble.save(image);
  }

  std::unique_ptr<SystemePourImages> systeme_ = std::make_unique<SystemePourImages>();
  std::unique_ptr<Programme> programme_ = std::make_unique<Programme>(*systeme_);
};

}  // namespace
}  // namespace sudoku

int main(int argc, char** argv) {
  sudoku::PrepareAffichage(false);
  QApplication application(argc, argv);
  sudoku::PrepareApplication(application);
  std::vector<std::unique_ptr<sudoku::Images>> images;  // the windows of a game stay to the end
  for (std::string ligne; std::getline(std::cin, ligne);) {
    if (ligne.empty() || ligne.front() == '#') continue;
    // A game file begins a run of its own.
    if (ligne.starts_with("ouvre ")) images.push_back(std::make_unique<sudoku::Images>());
    if (!images.empty() && images.back()->Execute(ligne)) continue;
    std::cerr << "ligne refusée : " << ligne << '\n';
    return 1;
  }
  return 0;
}

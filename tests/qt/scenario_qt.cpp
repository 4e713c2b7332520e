// Plays a written session on real windows: scenario_qt SESSION.txt. What the user does and answers is done on
// paper; the windows show the records, and a difference between the two is a line of the transcript.

#include <fstream>
#include <iostream>
#include <utility>

#include "qt/application.h"
#include "qt/fidelite.h"
#include "qt/systeme_qt.h"
#include "scenario/session.h"

namespace sudoku {
namespace {

class SceneQt : public Scene, private SystemeQt {
 public:
  explicit SceneQt(SystemeSansEcran& papier) : Scene(papier) {}

  Systeme& LeSysteme() override { return *this; }
  void Joue(const std::function<bool()>& avance) override {
    papier_.AttendPar([&](const Boite& boite) {
      while (!boite.close && !(boite.fenetre != nullptr && boite.fenetre->fermee)) {
        if (Pas(avance)) continue;
        papier_.EcritFinDans(boite);
        break;
      }
    });
    while (Pas(avance)) {
    }
  }

 private:
  bool Pas(const std::function<bool()>& avance) {
    const bool suite = avance();
    Execute([] {});
    for (const Fenetre* fenetre : papier_.Fenetres()) {
      if (FenetreQt* ecran = FenetreDe(*fenetre)) Compare(*ecran, *fenetre);
    }
    if (modale_ != nullptr && !modale_->LaFenetre().fermee) {
      modale_->Synchronise();
      Compare(*modale_, modale_->LaFenetre());
    }
    return suite;
  }
  static void Compare(FenetreQt& ecran, const Fenetre& fenetre) {
    const std::string difference = Difference(ecran, fenetre);
    if (!difference.empty()) std::cout << "! à l'écran : " << difference << '\n';
  }

  void Message(TexteVue texte, TexteVue titre) override { papier_.Message(texte, titre); }
  bool Question(TexteVue texte) override { return papier_.Question(texte); }
  Texte Saisie(TexteVue texte, TexteVue titre, TexteVue defaut) override {
    return papier_.Saisie(texte, titre, defaut);
  }
  void Fichier(DemandeFichier& demande) override { papier_.Fichier(demande); }
  void MontreModale(Fenetre& fenetre) override {
    FenetreQt ecran(fenetre, *this, nullptr, {.modale = true});
    fenetre.Visible = true;
    FenetreQt* const dessous = std::exchange(modale_, &ecran);
    papier_.MontreModale(fenetre);
    modale_ = dessous;
  }
  void Ajoute(Fenetre& fenetre) override {
    papier_.Ajoute(fenetre);
    SystemeQt::Ajoute(fenetre);
  }
  [[noreturn]] void Fin() override { papier_.SystemeSansEcran::Fin(); }
  std::int64_t Maintenant() override { return papier_.Maintenant(); }
  Fichiers& LesFichiers() override { return papier_.LesFichiers(); }
  std::optional<ValeurRegistre> Registre(std::uint32_t racine, TexteVue cle, TexteVue valeur) override {
    return papier_.Registre(racine, cle, valeur);
  }
  bool Lance(TexteVue chemin) override { return papier_.Lance(chemin); }

  FenetreQt* modale_ = nullptr;  // on top
};

}  // namespace
}  // namespace sudoku

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::ifstream fichier(argv[1], std::ios::binary);
  if (!fichier) return 1;
  QApplication application(argc, argv);
  sudoku::PrepareApplication(application);
  sudoku::FichiersDisque fichiers;
  sudoku::Session(fichier, std::cout, fichiers, [](sudoku::SystemeSansEcran& papier) {
    return std::make_unique<sudoku::SceneQt>(papier);
  }).Joue();
  std::cout.flush();
  std::_Exit(0);  // windows that the session's end left open are still on the stack's account
}

#pragma once

#include <iosfwd>

#include "headless/scene.h"
#include "qt/fenetre_qt.h"
#include "qt/systeme_qt.h"

namespace sudoku {

// A session on real windows: the commands move mouse and keyboard, boxes open on the screen and are answered
// there, and the transcript is the one on paper. What a window shows is compared with its record after every
// command, and what a box says before it is answered; a difference is a line of the transcript.
class SceneQt : public Scene, private SystemeQt {
 public:
  SceneQt(SystemeSansEcran& papier, std::ostream& sortie);

  Systeme& LeSysteme() override { return *this; }
  void Joue(const std::function<bool()>& avance) override;

  void Demarre(const std::function<void()>& depart) override { Execute(depart); }
  void Saisit(Fenetre& fenetre, int Index, TexteVue texte) override;
  void Focus(Fenetre& fenetre, int Index) override;
  Texte Annule(Fenetre& fenetre) override;
  Texte Retablit(Fenetre& fenetre) override;
  Texte Colle(Fenetre& fenetre, TexteVue texte) override;
  void Touche(Fenetre& fenetre, int KeyCode) override;
  void Sonne(Minuterie& minuterie) override { Execute(minuterie.Timer); }
  void Choisit(Fenetre& fenetre, ArticleMenu& article) override;
  void Clique(Fenetre& fenetre, Element& element) override;
  void Presse(Fenetre& fenetre, Element& bouton, bool souris) override;
  void Relache(Fenetre& fenetre, Element& bouton, bool souris) override;
  void Ferme(Fenetre& fenetre) override { FenetreDe(fenetre)->close(); }
  void Selectionne(Fenetre& fenetre, Element& liste, int position) override;
  void Edite(Fenetre& fenetre, Element& champ, TexteVue texte) override;
  void DoubleClique(Fenetre& fenetre, Element& liste) override;

 private:
  void Message(TexteVue texte, TexteVue titre) override;
  bool Question(TexteVue texte) override;
  Texte Saisie(TexteVue texte, TexteVue titre, TexteVue defaut) override;
  void Fichier(DemandeFichier& demande) override;
  void MontreModale(Fenetre& fenetre) override;
  void Ajoute(Fenetre& fenetre) override;
  [[noreturn]] void Fin() override;
  std::int64_t Maintenant() override { return papier_.Maintenant(); }
  Fichiers& LesFichiers() override { return papier_.LesFichiers(); }
  std::optional<ValeurRegistre> Registre(std::uint32_t racine, TexteVue cle, TexteVue valeur) override {
    return papier_.Registre(racine, cle, valeur);
  }
  bool Lance(TexteVue chemin) override { return papier_.Lance(chemin); }

  void Note(TexteVue texte, TexteVue titre) {
    texte_ = texte;
    titre_ = titre;
  }
  void Attend(Boite& boite);
  void Planifie();
  void Pas();
  void Repond(const Boite& boite);
  void Termine(const Boite& boite);
  void Compare();
  Texte Raccourci(Fenetre& fenetre, Qt::Key touche, bool maj);
  QWidget* Trouve(const Fenetre& fenetre, const std::string& nom);

  std::ostream& sortie_;
  std::function<bool()> avance_;
  Texte texte_, titre_;                 // of the box that opened last
  std::function<void(Boite&)> montre_;  // opens, on the screen, the box that paper is about to wait for
};

}  // namespace sudoku

#pragma once

#include <memory>

#include "headless/systeme_sans_ecran.h"

namespace sudoku {

// Where a session is played: the window system that the game runs on, and what the user does to its windows.
// The commands of a session come here once they are known to be allowed. This one acts on the records and
// answers boxes on paper; another may move a real mouse and keyboard and show the same to a screen.
class Scene {
 public:
  explicit Scene(SystemeSansEcran& papier) : papier_(papier) {}
  virtual ~Scene() = default;
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  virtual Systeme& LeSysteme() { return papier_; }
  // Calls `avance`, which runs the next command or says that none is left, to the end of the session.
  virtual void Joue(const std::function<bool()>& avance);

  virtual void Demarre(const std::function<void()>& depart) { depart(); }
  virtual void Saisit(Fenetre& fenetre, int Index, TexteVue texte);
  virtual void Focus(Fenetre& fenetre, int Index);
  // Back, forth, a whole grid: empty, or what is said to the user.
  virtual Texte Annule(Fenetre& fenetre);
  virtual Texte Retablit(Fenetre& fenetre);
  virtual Texte Colle(Fenetre& fenetre, TexteVue texte);
  virtual void Touche(Fenetre& fenetre, int KeyCode);
  virtual void Sonne(Minuterie& minuterie);
  virtual void Choisit(Fenetre& fenetre, ArticleMenu& article);
  virtual void Clique(Fenetre& fenetre, Element& element);
  // A button is pressed and held, or let go, with the mouse or the space bar.
  virtual void Presse(Fenetre& fenetre, Element& bouton, bool souris);
  virtual void Relache(Fenetre& fenetre, Element& bouton, bool souris);
  virtual void Ferme(Fenetre& fenetre);
  virtual void Selectionne(Fenetre& fenetre, Element& liste, int position);
  virtual void Edite(Fenetre& fenetre, Element& champ, TexteVue texte);
  virtual void DoubleClique(Fenetre& fenetre, Element& liste);

 protected:
  SystemeSansEcran& papier_;
};

// Makes the scene of a session, once its system on paper is there.
using FabriqueScene = std::function<std::unique_ptr<Scene>(SystemeSansEcran& papier)>;
std::unique_ptr<Scene> SceneSurPapier(SystemeSansEcran& papier);

}  // namespace sudoku

#include "headless/scene.h"

namespace sudoku {
namespace {

constexpr int kEntree = 13;
constexpr int kEchappement = 27;
constexpr int kEspace = 32;

}  // namespace

void Scene::Joue(const std::function<bool()>& avance) {
  while (avance()) {
  }
}

void Scene::Saisit(Fenetre& fenetre, int Index, TexteVue texte) {
  fenetre.plateau.Saisit(Index, texte);
}

void Scene::Focus(Fenetre& fenetre, int Index) {
  fenetre.plateau.SetFocus(Index);
}

Texte Scene::Annule(Fenetre& fenetre) {
  return fenetre.conforts.Annule();
}

Texte Scene::Retablit(Fenetre& fenetre) {
  return fenetre.conforts.Retablit();
}

Texte Scene::Colle(Fenetre& fenetre, TexteVue texte) {
  return fenetre.conforts.Colle(texte);
}

// A key handler if the window has one, otherwise the button that the key stands for.
void Scene::Touche(Fenetre& fenetre, int KeyCode) {
  if (fenetre.KeyDown) return fenetre.KeyDown(KeyCode);
  for (Element& element : fenetre.elements) {
    if ((KeyCode == kEntree && element.Default) || (KeyCode == kEchappement && element.Cancel)) {
      return element.Clique();
    }
  }
}

void Scene::Sonne(Minuterie& minuterie) {
  minuterie.Timer();
}

void Scene::Choisit(Fenetre&, ArticleMenu& article) {
  article.Click();
}

void Scene::Clique(Fenetre&, Element& element) {
  element.Clique();
}

void Scene::Presse(Fenetre&, Element& bouton, bool souris) {
  souris ? bouton.MouseDown() : bouton.KeyDown(kEspace);
}

void Scene::Relache(Fenetre&, Element& bouton, bool souris) {
  souris ? bouton.MouseUp() : bouton.KeyUp(kEspace);
}

void Scene::Ferme(Fenetre& fenetre) {
  const bool reste = fenetre.QueryUnload && fenetre.QueryUnload(kFermeParUtilisateur);
  if (!reste) fenetre.Ferme();
}

void Scene::Selectionne(Fenetre&, Element& liste, int position) {
  liste.Selectionne(position);
}

void Scene::Edite(Fenetre&, Element& champ, TexteVue texte) {
  champ.Edite(texte);
}

void Scene::DoubleClique(Fenetre&, Element& liste) {
  liste.DoubleClique();
}

std::unique_ptr<Scene> SceneSurPapier(SystemeSansEcran& papier) {
  return std::make_unique<Scene>(papier);
}

}  // namespace sudoku

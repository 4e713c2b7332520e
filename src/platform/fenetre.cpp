#include "platform/fenetre.h"

#include <algorithm>

namespace sudoku {
namespace {

template <class T>
T* Cherche(std::vector<T>& liste, std::string_view nom) {
  const auto place = std::find_if(liste.begin(), liste.end(), [&](const T& t) { return t.Name == nom; });
  return place == liste.end() ? nullptr : &*place;
}

}  // namespace

Element* Fenetre::Trouve(std::string_view nom) {
  return Cherche(elements, nom);
}

ArticleMenu* Fenetre::TrouveArticle(std::string_view nom) {
  for (Menu& menu : menus) {
    if (ArticleMenu* article = Cherche(menu.articles, nom)) return article;
  }
  return nullptr;
}

Minuterie* Fenetre::TrouveMinuterie(std::string_view nom) {
  return Cherche(minuteries, nom);
}

}  // namespace sudoku

#pragma once

#include <memory>

#include "platform/fenetre.h"
#include "qt/pilote.h"

class QRect;
class QWidget;

namespace sudoku {

// One element of a window as a real widget, which bears the element's name as its object name.
class ElementQt {
 public:
  ElementQt(Element& element, QWidget* widget);
  virtual ~ElementQt() = default;
  ElementQt(const ElementQt&) = delete;
  ElementQt& operator=(const ElementQt&) = delete;

  // Shows what the record holds; touches nothing that is shown already.
  void Synchronise();
  // Puts the widget at its place, `echelle` times the size of the table and no further right than
  // `largeurVisible` pixels. With `milieu` a centred one is centred in them as a whole.
  void Place(double echelle, int largeurVisible, bool milieu);

  const Element& LElement() const { return element_; }
  QWidget* Widget() const { return widget_; }

 protected:
  // Text, state and items; visibility, enabling and place are the same for all kinds.
  virtual void MontreContenu() = 0;
  // Size and font have changed to `echelle`.
  virtual void Dimensionne(double echelle) = 0;
  // That of the last Dimensionne.
  double Echelle() const { return echelle_; }
  // Lines are places, not rectangles.
  virtual QRect Rectangle(double echelle) const;

  Element& element_;

 private:
  QWidget* widget_;
  double echelle_ = 1;
  int largeur_ = 0;
  bool milieu_ = false;
};

std::unique_ptr<ElementQt> FabriqueElement(Element& element, QWidget* parent, Pilote& pilote);

}  // namespace sudoku

#pragma once

#include <QFont>
#include <QString>
#include <QWidget>

namespace sudoku {

// A label. A centred one is one line: what doesn't fit is condensed, then elided with the whole text as its
// tooltip. Any
// other is wrapped at its width. A screen reader finds its text, but is not told of every change: a clock in
// a label would never let it finish.
class Etiquette : public QWidget {
 public:
  using QWidget::QWidget;

  void Montre(const QString& texte);
  void PrendApparence(const QFont& police, bool centre, bool bordure);
  const QString& Texte() const { return texte_; }

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override { Ajuste(); }

 private:
  QRect Dedans() const;
  void Ajuste();

  QFont police_;
  QString texte_;
  bool centre_ = false;
  bool bordure_ = false;
};

}  // namespace sudoku

// What the toolkit itself takes to start: an empty window of the game's size.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget fenetre;
  fenetre.resize(282, 266);
  fenetre.show();
  return QApplication::exec();
}

#include <QApplication>
#include <QWidget>

/// The toolkit with one empty window: what no program of it can start before, or be smaller than.
int main(int argc, char **argv) {
  const QApplication application(argc, argv);
  QWidget fenetre;
  fenetre.setWindowTitle("Velmaris 2009"); // found as the program's own window is
  fenetre.resize(1900, 900);
  fenetre.show();
  return QApplication::exec();
}

// The least that a Qt program can be: one window of the game's size that shows one picture. Start
// time and memory of the game are told as ratios to it.
#include <QApplication>
#include <QLabel>

int main(int argc, char *argv[]) {
  QApplication anwendung(argc, argv);
  QLabel fenster;
  fenster.setPixmap(QPixmap(argv[1]));
  fenster.setFixedSize(878, 729);
  fenster.setWindowTitle("leeres Fenster");
  fenster.show();
  return QApplication::exec();
}

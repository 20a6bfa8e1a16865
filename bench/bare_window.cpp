// The least that a Qt program can be: one window of the game's size that shows one picture. Start
// time and memory of the game are told as ratios to it.
#include <QApplication>
#include <QLabel>

int main(int argc, char *argv[]) {
  QApplication application(argc, argv);
  QLabel window;
  window.setPixmap(QPixmap(argv[1]));
  window.setFixedSize(878, 729);
  window.setWindowTitle("bare window");
  window.show();
  return QApplication::exec();
}

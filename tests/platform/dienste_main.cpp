#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "fr_FR.UTF-8");  // Any language but German.
  testing::InitGoogleTest(&argc, argv);
  const QApplication anwendung(argc, argv);
  return RUN_ALL_TESTS();
}

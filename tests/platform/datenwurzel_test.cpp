#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "platform/pfade.h"
#include "tests/platform/dateien.h"

TEST(Datenwurzel, NachUmgebung) {
  const QTemporaryDir ordner;
  Lege(ordner.filePath("datei"), "");
  const QByteArray heim = ordner.path().toUtf8();
  const std::array<QByteArray, 3> faelle[] = {
      {heim, "", heim + "/.local/share"},  // Created on the way.
      {"", heim + "/xdg", heim + "/xdg"}, {"", "", ""}, {"", "kein/voller/pfad", ""},
      {heim + "/datei/heim", "", ""},  // A home directory that cannot exist.
  };
  for (const auto &[home, xdg, wurzel] : faelle) {
    qputenv("HOME", home);
    qputenv("XDG_DATA_HOME", xdg);
    EXPECT_EQ(Datenwurzel(), wurzel) << home.data() << " " << xdg.data();
    EXPECT_TRUE(wurzel.isEmpty() || QDir(wurzel).exists());
  }
}

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "platform/datenwurzel.h"
#include "tests/files.h"

TEST(Datenwurzel, NachUmgebung) {
  const QTemporaryDir folder;
  WriteFile(folder.filePath("datei"), "");
  const QByteArray heim = folder.path().toUtf8();
  const struct {
    QByteArray home, xdg, wurzel;
  } faelle[] = {
      {heim, "", heim + "/.local/share"},  // Created on the way.
      {heim, "kein/voller/pfad", heim + "/.local/share"},
      {"", heim + "/xdg", heim + "/xdg"},
      {"kein/voller/pfad", heim + "/xdg", heim + "/xdg"},
      {"", "", ""},
      {"", "kein/voller/pfad", ""},
      {"kein/voller/pfad", "", ""},
      {heim + "/datei/heim", "", ""},  // A home directory that cannot exist.
  };
  for (const auto &[home, xdg, wurzel] : faelle) {
    qputenv("HOME", home);
    qputenv("XDG_DATA_HOME", xdg);
    EXPECT_EQ(Datenwurzel(), wurzel) << home.data() << " " << xdg.data();
    EXPECT_TRUE(wurzel.isEmpty() || QDir(wurzel).exists());
  }
}

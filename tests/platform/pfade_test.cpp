#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/modExistiertDatei.h"
#include "platform/pfade.h"
#include "tests/platform/dateien.h"

TEST(Pfade, DatenwurzelNachUmgebung) {
  const QTemporaryDir ordner;
  const QByteArray heim = ordner.path().toUtf8();
  Lege(ordner.filePath("datei"), "");
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

TEST(Pfade, ProgrammordnerZiehtMitUm) {
  const QTemporaryDir ordner;
  const QDir baum(ordner.path());
  const auto erwarte = [&](const QString &stelle, const QString &programmordner) {
    baum.mkpath(stelle);
    QFile::copy(ZEIGE_PROGRAMMORDNER, baum.filePath(stelle + "/p"));
    QProcess programm;
    programm.start(baum.filePath(stelle + "/p"), {});
    programm.waitForFinished();
    EXPECT_EQ(programm.readAllStandardOutput().trimmed(), baum.filePath(programmordner).toUtf8());
  };
  erwarte("bin", "bin");
  baum.mkpath("share/glanzgrube");
  erwarte("bin", "share/glanzgrube");
  erwarte("sonstwo", "sonstwo");
}

TEST(ExistiertDatei, NurEinFehlenderNameImVorhandenenOrdnerFehlt) {
  const QTemporaryDir ordner;
  Lege(ordner.filePath("datei"), "");
  const std::pair<QString, bool> faelle[] = {
      {"", true}, {"/datei", true}, {"/fehlt", false}, {"/fehlt/datei", true}, {"/datei/x", true}};
  for (const auto &[name, da] : faelle)
    EXPECT_EQ(ExistiertDatei(ordner.path() + name), da) << qPrintable(name);
  EXPECT_FALSE(ExistiertDatei(""));
}

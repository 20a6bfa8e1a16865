#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "persistence/textdatei.h"
#include "platform/modExistiertDatei.h"
#include "tests/files.h"

class Platform : public testing::Test {
 protected:
  QTemporaryDir folder;
  QString pfad = folder.filePath("datei");
};

TEST_F(Platform, NurEinFehlenderNameImVorhandenenOrdnerFehlt) {
  WriteFile(pfad, "");
  for (const char *name : {"", "/datei", "/fehlt/datei", "/datei/x"})
    EXPECT_TRUE(ExistiertDatei(folder.path() + name)) << name;
  EXPECT_FALSE(ExistiertDatei(folder.path() + "/fehlt"));
  EXPECT_FALSE(ExistiertDatei(""));
}

TEST_F(Platform, Zeilenenden) {
  const struct {
    QByteArray bytes;
    QStringList zeilen;
    Dateifehler fehler = Dateifehler::Keiner;
  } faelle[] = {
      {"a\r\nb\r\nc", {"a", "b"}},
      {"a\nb", {"a", "b"}},
      {"a\rb\r", {"a", "b"}},
      {"\r\n\n", {"", ""}},
      {"\n\r", {"", ""}},
      {"a\r\n", {"a"}, Dateifehler::Dateiende},
      {QByteArray("\0\n\0", 3), {QChar(0), QChar(0)}},
      {"a\n" + QByteArray(kLaengsteZeile, 'x'), {"a", QString(kLaengsteZeile, 'x')}},
      {"a\n" + QByteArray(10 << 20, 'x'), {"a"}, Dateifehler::Anderer},
  };
  for (const auto &fall : faelle) {
    WriteFile(pfad, fall.bytes);
    const Textzeilen gelesen = LiesZeilen(pfad, 2);
    EXPECT_EQ(gelesen.Zeilen, fall.zeilen) << fall.bytes.left(20).data();
    EXPECT_EQ(gelesen.Fehler, fall.fehler) << fall.bytes.left(20).data();
  }
}

TEST_F(Platform, CodepageHinUndZurueck) {
  QByteArray alle;
  for (int byte = 0; byte < 256; ++byte)
    alle.append(static_cast<char>(byte));
  alle.replace("\n", "").replace("\r", "");
  WriteFile(pfad, alle + "\r\n");
  const Textzeilen gelesen = LiesZeilen(pfad, 1);
  EXPECT_TRUE(gelesen.Zeilen.value(0).contains("€\u0081‚ƒ"));
  ASSERT_EQ(SchreibeZeilen(pfad, gelesen.Zeilen), Dateifehler::Keiner);
  EXPECT_EQ(ReadFile(pfad), alle + "\r\n");
  EXPECT_EQ(Speicherbar("Ju\u0308rg €\U0001F600 Ł\r\n?"), "Jürg € ?");
  SchreibeZeilen(pfad, {"Jörg € »ß« 😀 Ł", "a\r\nb", ""});
  EXPECT_EQ(ReadFile(pfad), "J\xF6rg \x80 \xBB\xDF\xAB ? ?\r\na??b\r\n\r\n");
}

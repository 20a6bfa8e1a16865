#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>

#include "platform/textdatei.h"
#include "tests/platform/dateien.h"

namespace {

class Textdatei : public testing::Test {
 protected:
  QTemporaryDir ordner;
  QString pfad = ordner.filePath("text");
};

}  // namespace

TEST_F(Textdatei, Zeilenenden) {
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
    Lege(pfad, fall.bytes);
    const Textzeilen gelesen = LiesZeilen(pfad, 2);
    EXPECT_EQ(gelesen.Zeilen, fall.zeilen) << fall.bytes.left(20).data();
    EXPECT_EQ(gelesen.Fehler, fall.fehler) << fall.bytes.left(20).data();
  }
}

TEST_F(Textdatei, CodepageHinUndZurueck) {
  QByteArray alle;
  for (int byte = 0; byte < 256; ++byte)
    alle.append(static_cast<char>(byte));
  alle.replace("\n", "").replace("\r", "");
  Lege(pfad, alle + "\r\n");
  const Textzeilen gelesen = LiesZeilen(pfad, 1);
  EXPECT_TRUE(gelesen.Zeilen.value(0).contains("€\u0081‚ƒ"));
  ASSERT_EQ(SchreibeZeilen(pfad, gelesen.Zeilen), Dateifehler::Keiner);
  EXPECT_EQ(Inhalt(pfad), alle + "\r\n");

  SchreibeZeilen(pfad, {"Jörg € »ß« 😀 Ł", "a\r\nb", ""});
  EXPECT_EQ(Inhalt(pfad), "J\xF6rg \x80 \xBB\xDF\xAB ? ?\r\na??b\r\n\r\n");
}

TEST_F(Textdatei, EinRohrBlockiertNicht) {
  mkfifo(qPrintable(pfad), 0600);
  EXPECT_EQ(LiesZeilen(pfad, 1).Fehler, Dateifehler::ZugriffVerweigert);
  EXPECT_EQ(SchreibeZeilen(pfad, {"a"}), Dateifehler::ZugriffVerweigert);
}

TEST(LiesZahl, NurGanzeZahlenImBereich) {
  const struct {
    QString text;
    Dateifehler fehler = Dateifehler::KeineZahl;
    std::int16_t wert = 99;
  } faelle[] = {
      {"-32768", Dateifehler::Keiner, -32768},
      {"  007 ", Dateifehler::Keiner, 7},
      {"32768", Dateifehler::Zahlenbereich},
      {"99999999999999999999", Dateifehler::Zahlenbereich},
      {"99999999999999999999x"},
      {" "},
      {"-"},
      {"1 2"},
      {"1,5"},
      {QString("5") + QChar(0)},
      {"５"},
  };
  for (const auto &fall : faelle) {
    std::int16_t wert = 99;
    EXPECT_EQ(LiesZahl(fall.text, wert), fall.fehler) << qPrintable(fall.text);
    EXPECT_EQ(wert, fall.wert) << qPrintable(fall.text);
  }
}

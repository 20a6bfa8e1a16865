#include "persistence/iniLumbra.h"
#include "tests/persistence/umgebung.h"

using Ini = Umgebung;

TEST_F(Ini, SchreibtByteFuerByte) {
  for (std::int16_t modus = 1; modus <= kModi; ++modus) {
    spiel.Spielmodus = modus;
    SchreibeIni();
    EXPECT_EQ(Inhalt(IniPfad()), QByteArray::number(modus) + "\r\n");
  }
}

TEST_F(Ini, LiestDenModusUndLaesstDieDateiStehen) {
  const struct {
    QByteArray bytes;
    std::int16_t modus;
    bool zeigtModus = false;
  } faelle[] = {
      {"1\r\n", 1, true},
      {"3\nmehr", 3, true},
      {"-1\r\n", 2, true},
      {"0\r\n", 2},
      {"4\r\n", 2},
      {"Experte\r\n", 2},
      {"", 2},
      {"65539\r\n", 2},
      {QByteArray("3\0", 2), 2},
      {QByteArray(10 << 20, '3'), 2},
  };
  for (const auto &fall : faelle) {
    Lege(IniPfad(), fall.bytes);
    spiel.Spielmodus = 1;
    ansicht.modustext.clear();
    LeseIni(ansicht);
    EXPECT_EQ(spiel.Spielmodus, fall.modus) << fall.bytes.left(20).data();
    EXPECT_EQ(ansicht.modustext, fall.zeigtModus ? Moduszeile(3) : "") << fall.bytes.left(9).data();
    EXPECT_EQ(Inhalt(IniPfad()), fall.bytes);
  }
}

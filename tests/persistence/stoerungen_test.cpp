// Everything that keeps a file from being written or read, provoked on a real file system.
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <csignal>

#include "persistence/iniLumbra.h"
#include "persistence/modCdVersion.h"
#include "persistence/modDateiHandling.h"
#include "tests/persistence/umgebung.h"

namespace {

/// Root may do everything; during the action it may not.
template <class Aktion>
void OhneVorrechte(Aktion aktion) {
  const uid_t wirklich = getuid();
  const uid_t niemand = wirklich == 0 ? 65534 : wirklich;
  ASSERT_EQ(setresuid(niemand, niemand, wirklich), 0);
  aktion();
  ASSERT_EQ(setresuid(wirklich, wirklich, wirklich), 0);
}

bool SchreibeZuordnung(const QString &name, const QByteArray &text) {
  QFile datei("/proc/self/" + name);
  return datei.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
         datei.write(text) == text.size();
}

/// Lets a folder be a file system of one page, in a process that has it for itself.
bool HaengeKleinenDatentraegerEin(const QString &ordner) {
  const QByteArray nutzer = "0 " + QByteArray::number(getuid()) + " 1";
  const QByteArray gruppe = "0 " + QByteArray::number(getgid()) + " 1";
  return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && SchreibeZuordnung("uid_map", nutzer) &&
         SchreibeZuordnung("setgroups", "deny") && SchreibeZuordnung("gid_map", gruppe) &&
         mount("none", qPrintable(ordner), "tmpfs", 0, "size=4096") == 0;
}

}  // namespace

class Stoerung : public Umgebung {
 protected:
  QString ordner = temporaer.filePath("ordner");
  QString sar = ordner + "/spiel.sar";

  Stoerung() {
    chmod(qPrintable(temporaer.path()), 0755);
    QDir().mkdir(ordner);
    spiel.Datenordner = ordner.toStdString();
    lstPunkte = {"5", "4", "3", "2", "1"};
    spiel.Bestenschwelle = 77;
  }

  QStringList Dateien() const { return {sar, IniPfad(), BestenlistePfad()}; }

  /// Each operation tells the failure in its own way and changes nothing.
  void ErwarteSchreibfehler(int nummer) {
    SpeichereSpielstand(ansicht, sar);
    ErwarteMeldung(MeldungSchreibfehler(nummer));
    BestenlisteSpeichern(ansicht);
    ErwarteMeldung(MeldungBesteNichtGespeichert());
    EXPECT_EQ(spiel.Bestenschwelle, 77);
    SchreibeIni();
    BestenlisteAnlegen();
    EXPECT_TRUE(ansicht.meldungen.empty());
  }
  void ErwarteLesefehler(int nummer) {
    LadeSpielstand(ansicht, sar);
    ErwarteMeldung(MeldungLesefehler(nummer));
    BestenlisteLaden(ansicht);
    ErwarteMeldung(MeldungBesteNichtGelesen(nummer));
  }
};

TEST_F(Stoerung, EtwasFehlt) {
  ErwarteLesefehler(1);
  QDir().rmdir(ordner);
  ErwarteLesefehler(3);
  ErwarteSchreibfehler(3);
}

TEST_F(Stoerung, OrdnerAnStelleDerDatei) {
  for (const QString &pfad : Dateien())
    QDir().mkdir(pfad);
  ErwarteLesefehler(2);
  ErwarteSchreibfehler(2);
}

TEST_F(Stoerung, RechteFehlen) {
  for (const QString &pfad : Dateien())
    Lege(pfad, "alt");
  chmod(qPrintable(ordner), 0555);
  OhneVorrechte([&] {
    ErwarteSchreibfehler(2);
    LegeDatenordnerAn(ansicht, ordner + "/neu");
    ErwarteMeldung(MeldungOrdnerFehlgeschlagen());
  });
  chmod(qPrintable(ordner), 0777);
  for (const QString &pfad : Dateien())
    chmod(qPrintable(pfad), 0);
  OhneVorrechte([&] {
    ErwarteSchreibfehler(2);
    ErwarteLesefehler(2);
  });
  for (const QString &pfad : Dateien()) {
    chmod(qPrintable(pfad), 0600);
    EXPECT_EQ(Inhalt(pfad), "alt");
  }
  EXPECT_EQ(QDir(ordner).entryList(QDir::Files).size(), 3) << "no remains";
}

TEST_F(Stoerung, DatentraegerVoll) {
  enum Ausgang { Bestanden, Durchgefallen, Unmoeglich };
  const pid_t kind = fork();
  if (kind == 0) {
    if (!HaengeKleinenDatentraegerEin(ordner))
      _exit(Unmoeglich);
    Lege(ordner + "/ballast", QByteArray(4096, 'x'));
    ErwarteSchreibfehler(4);
    EXPECT_EQ(QDir(ordner).entryList(QDir::Files), QStringList("ballast"));
    _exit(HasFailure() ? Durchgefallen : Bestanden);
  }
  int status = 0;
  waitpid(kind, &status, 0);
  if (WIFEXITED(status) && WEXITSTATUS(status) == Unmoeglich)
    GTEST_SKIP() << "no file system may be mounted here";
  EXPECT_EQ(status, 0);
}

TEST_F(Stoerung, AbbruchLaesstAlteOderNeueDatei) {
  constexpr int kAbbrueche = 300;
  const QByteArray erste = "7\r\n111111\r\n2\r\n";
  const QByteArray zweite = "7\r\n2\r\n2\r\n";
  spiel.Level = 7;
  spiel.Punkte = 111111;
  QElapsedTimer uhr;
  uhr.start();
  SpeichereSpielstand(ansicht, sar);
  const auto dauer = uhr.nsecsElapsed() / 1000;  // microseconds
  int neu = 0;
  for (int n = 0; n < kAbbrueche; ++n) {
    const QByteArray vorher = Inhalt(sar);
    const pid_t kind = fork();
    if (kind == 0) {
      spiel.Punkte = 2;
      while (true) {
        SpeichereSpielstand(ansicht, sar);
        spiel.Punkte = 111113 - spiel.Punkte;
      }
    }
    usleep(static_cast<useconds_t>(n % 100 * dauer / 25));
    kill(kind, SIGKILL);
    waitpid(kind, nullptr, 0);
    const QByteArray nachher = Inhalt(sar);
    ASSERT_TRUE(nachher == erste || nachher == zweite) << nachher.data();
    neu += nachher != vorher ? 1 : 0;
  }
  EXPECT_GT(neu, 0) << "no save was ever reached";
}

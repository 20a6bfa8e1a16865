// Everything that keeps a file from being written or read, provoked on a real file system.
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>

#include "persistence/iniLumbra.h"
#include "persistence/modCdVersion.h"
#include "persistence/modDateiHandling.h"
#include "tests/persistence/fixture.h"

namespace {

/// From now on a system call fails in this process, as it does on a disk that is full or broken.
bool Stoere(std::uint32_t aufruf, std::uint32_t fehler) {
  sock_filter befehle[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, aufruf, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | fehler),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  };
  const sock_fprog filter{std::size(befehle), befehle};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

}  // namespace

class Stoerung : public DataFixture {
 protected:
  QString ordner = folder.filePath("ordner");
  QString sar = ordner + "/spiel.sar";

  Stoerung() {
    chmod(qPrintable(folder.path()), 0755);
    QDir().mkdir(ordner);
    spiel.Datenordner = ordner.toStdString();
    spiel.Beste.lstPunkte = {"5", "4", "3", "2", "1"};
    spiel.Bestenschwelle = 77;
  }

  QStringList Dateien() const { return {sar, IniPfad(), BestenlistePfad()}; }
  void LegeAlteDateien() {
    for (const QString &pfad : Dateien())
      WriteFile(pfad, "alt");
  }
  void ErwarteAlteDateien() {
    for (const QString &pfad : Dateien())
      EXPECT_EQ(ReadFile(pfad), "alt");
    EXPECT_EQ(QDir(ordner).entryList(QDir::Files | QDir::Hidden).size(), 3) << "no remains";
  }

  /// Each operation tells the failure in its own way and changes nothing.
  void ErwarteSchreibfehler(int nummer) {
    SpeichereSpielstand(ansicht, sar);
    ExpectMessage(MeldungSchreibfehler(nummer));
    BestenlisteSpeichern(ansicht);
    ExpectMessage(MeldungBesteNichtGespeichert());
    EXPECT_EQ(spiel.Bestenschwelle, 77);
    SchreibeIni();
    BestenlisteAnlegen();
    EXPECT_TRUE(ansicht.meldungen.empty());
  }
  void ErwarteLesefehler(int nummer) {
    LadeSpielstand(ansicht, sar);
    ExpectMessage(MeldungLesefehler(nummer));
    BestenlisteLaden(ansicht);
    ExpectMessage(MeldungBesteNichtGelesen(nummer));
  }
};

TEST_F(Stoerung, EtwasFehltOderIstEinOrdner) {
  ErwarteLesefehler(1);
  for (const QString &pfad : Dateien())
    QDir().mkdir(pfad);
  ErwarteLesefehler(2);
  ErwarteSchreibfehler(2);
  QDir(ordner).removeRecursively();
  ErwarteLesefehler(3);
  ErwarteSchreibfehler(3);
}

TEST_F(Stoerung, RechteFehlen) {
  LegeAlteDateien();
  chmod(qPrintable(ordner), 0777);
  const QString offen = folder.filePath("offen.sar");
  WriteFile(offen, "alt");
  chmod(qPrintable(offen), 0666);
  for (const QString &pfad : Dateien())
    chmod(qPrintable(pfad), 0);
  const uid_t wirklich = getuid();  // Root may do everything.
  const uid_t niemand = wirklich == 0 ? 65534 : wirklich;
  ASSERT_EQ(setresuid(niemand, niemand, wirklich), 0);
  ErwarteSchreibfehler(2);
  ErwarteLesefehler(2);
  spiel.Level = 3;
  SpeichereSpielstand(ansicht, offen);  // A file that may be written in a folder that may not.
  EXPECT_TRUE(ansicht.meldungen.empty());
  ASSERT_EQ(setresuid(wirklich, wirklich, wirklich), 0);
  for (const QString &pfad : Dateien())
    chmod(qPrintable(pfad), 0600);
  ErwarteAlteDateien();
  EXPECT_EQ(ReadFile(offen).left(1), "3");
}

TEST_F(Stoerung, DatentraegerVollOderOhneBestaetigung) {
  const struct {
    std::uint32_t aufruf, fehler;
    int nummer;
  } faelle[] = {{SYS_write, ENOSPC, 4}, {SYS_fsync, EIO, 8}};
  LegeAlteDateien();
  for (const auto &[aufruf, fehler, nummer] : faelle) {
    const pid_t kind = fork();
    if (kind == 0) {
      const bool gestoert = Stoere(aufruf, fehler);
      ErwarteSchreibfehler(nummer);
      _exit(gestoert && !HasFailure() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    waitpid(kind, &status, 0);
    EXPECT_EQ(status, 0) << nummer;
    ErwarteAlteDateien();
  }
}

TEST_F(Stoerung, DatentraegerIstDefekt) {
  for (const QString &pfad : {sar, BestenlistePfad()})
    QFile::link("/proc/self/mem", pfad);  // A file whose first byte cannot be read.
  ErwarteLesefehler(8);
}

TEST_F(Stoerung, LangerName) {
  const struct {
    int zeichen;
    bool geht;
  } faelle[] = {{244, true}, {300, false}};
  for (const auto &[zeichen, geht] : faelle) {
    sar = ordner + "/" + QString(zeichen, 'x') + ".sar";
    for (int mal = 0; mal < 2; ++mal)
      SpeichereSpielstand(ansicht, sar);
    EXPECT_EQ(ansicht.meldungen.empty(), geht);
  }
  ansicht.meldungen.pop_back();
  ExpectMessage(MeldungSchreibfehler(8));
}

TEST_F(Stoerung, VerknuepfungenUndRechteBleiben) {
  const auto Link = [&](const char *name) { return ordner + "/" + name; };
  QFile::link(Link("b.sar"), Link("a.sar"));
  QFile::link(Link("c.sar"), Link("b.sar"));
  SpeichereSpielstand(ansicht, Link("a.sar"));  // It leads to a file that does not exist yet.
  chmod(qPrintable(Link("c.sar")), 0640);
  spiel.Level = 9;
  SpeichereSpielstand(ansicht, Link("a.sar"));
  EXPECT_EQ(ReadFile(Link("c.sar")).left(1), "9");
  EXPECT_TRUE(QFileInfo(Link("b.sar")).isSymLink());
  struct stat datei {};
  stat(qPrintable(Link("c.sar")), &datei);
  EXPECT_EQ(datei.st_mode & 0777U, 0640U);
  QFile::remove(Link("c.sar"));
  QFile::link(Link("a.sar"), Link("c.sar"));
  EXPECT_TRUE(ansicht.meldungen.empty());
  SpeichereSpielstand(ansicht, Link("a.sar"));
  ExpectMessage(MeldungSchreibfehler(2));
  EXPECT_TRUE(QFileInfo(Link("c.sar")).isSymLink());
}

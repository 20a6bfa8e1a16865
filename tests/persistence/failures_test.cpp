// Everything that keeps a file from being written or read, provoked on a real file system.
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QDir>
#include <cerrno>

#include "persistence/iniLumbra.h"
#include "persistence/modDateiHandling.h"
#include "platform/system.h"
#include "tests/persistence/fixture.h"

static int writeError = 0, syncError = 0, refused = 0;

// In place of the system's own, so that they fail as on a disk that is full, broken or protected.
extern "C" {
ssize_t write(int file, const void *bytes, std::size_t count) {
  errno = writeError;
  return writeError == 0 ? syscall(SYS_write, file, bytes, count) : -1;
}
int fsync(int file) {
  errno = syncError;
  return syncError == 0 ? static_cast<int>(syscall(SYS_fsync, file)) : -1;
}
int open64(const char *path, int flags, ...) {
  errno = EACCES;
  return (flags & refused) == 0 ? static_cast<int>(syscall(SYS_open, path, flags, 0666)) : -1;
}
}

namespace {

class Failure : public DataFixture {
 protected:
  QString data = folder.filePath("data");
  QStringList files;

  Failure() {
    QDir().mkdir(data);
    spiel.Datenordner = data.toStdString();
    spiel.Beste.lstPunkte = {"5", "4", "3", "2", "1"};
    spiel.Bestenschwelle = 77;
    path = data + "/spiel.sar";
    files = {path, IniPfad(), BestenlistePfad()};
  }

  /// Each operation tells its own failure and changes nothing.
  void ExpectErrors(const std::string &save, const std::string &load) {
    SCOPED_TRACE(save);
    SpeichereSpielstand(screen, path);
    ExpectMessage("Fehlernummer: " + save + " (Fehler beim Speichen");
    BestenlisteSpeichern(screen);
    ExpectMessage("Fehler beim Speichern (Die Werte");
    SchreibeIni();
    BestenlisteAnlegen();
    ExpectMessage("");
    LadeSpielstand(screen, path);
    ExpectMessage("Fehlernummer: " + load + " (Fehler beim Lesen der Datei");
    BestenlisteLaden(screen);
    ExpectMessage("Fehlernummer: " + load + " (Die Daten");
    EXPECT_EQ(spiel.Bestenschwelle, 77);
  }
};

TEST_F(Failure, SomethingIsMissingOrAFolderOrBrokenOrLong) {
  LadeSpielstand(screen, path);
  ExpectMessage("Fehlernummer: 1 (Fehler beim Lesen");
  BestenlisteLaden(screen);
  ExpectMessage("Fehlernummer: 1 (Die Daten");
  for (const QString &file : files)
    QDir().mkdir(file);
  ExpectErrors("2", "2");
  QDir(data).removeRecursively();
  ExpectErrors("3", "3");
  QDir().mkdir(data);
  for (const QString &file : files)
    QFile::link("/proc/self/mem", file);  // A file whose first byte cannot be read.
  ExpectErrors("2", "8");
  SpeichereSpielstand(screen, data + "/" + QString(248, 'x'));
  ExpectMessage("");
  SpeichereSpielstand(screen, data + "/" + QString(304, 'x'));
  ExpectMessage("Fehlernummer: 8");
}

TEST_F(Failure, TheDiskIsFullOrDoesNotConfirmOrRightsAreMissing) {
  for (const QString &file : files)
    WriteFile(file, "old");
  writeError = ENOSPC;
  ExpectErrors("4", "5");
  writeError = 0;
  syncError = EIO;
  ExpectErrors("8", "5");
  syncError = 0;
  refused = O_CLOEXEC;  // Each file is opened with it.
  ExpectErrors("2", "2");
  refused = O_EXCL;  // The folder takes no new file.
  SchreibeIni();
  refused = 0;
  EXPECT_EQ(ReadFile(path) + ReadFile(BestenlistePfad()) + ReadFile(IniPfad()), "oldold2\r\n");
  EXPECT_EQ(QDir(data).entryList(QDir::Files | QDir::Hidden).size(), 3) << "no remains";
}

TEST_F(Failure, LinksAndModesStay) {
  const QString link = data + "/a.sar", second = data + "/b.sar", deep = data + "/tief/c.sar";
  QFile::link(second, link);
  QFile::link(path, second);
  SpeichereSpielstand(screen, link);  // It leads to a file that does not exist yet.
  chmod(qPrintable(path), 0640);
  QDir(data).mkpath("tief/ordner");
  QFile::link("tief/ordner", data + "/kurz");
  QFile::link("../c.sar", data + "/tief/ordner/c.sar");  // Starts where the link lies.
  WriteFile(deep, "old");
  spiel.Level = 9;
  for (const QString &file : {link, data + "/kurz/c.sar"})
    SpeichereSpielstand(screen, file);
  EXPECT_EQ(ReadFile(path).left(1) + ReadFile(deep).left(1), "99");
  EXPECT_TRUE(QFileInfo(second).isSymLink());
  struct stat state = {};
  stat(qPrintable(path), &state);
  EXPECT_EQ(state.st_mode & 0777U, 0640U);
  ExpectMessage("");
  QFile::remove(path);
  QFile::link(link, path);  // A loop.
  SpeichereSpielstand(screen, link);
  ExpectMessage("Fehlernummer: 2");
  EXPECT_TRUE(QFileInfo(path).isSymLink());
}

TEST_F(Failure, TheEnvironmentDecidesWhereTheDataLie) {
  WriteFile(path, "");
  const QByteArray home = folder.path().toUtf8(), relative = "kein/voller/pfad";
  // HOME, XDG_DATA_HOME and the folder, which is made on the way.
  for (const auto &[userHome, xdg, root] : {std::tuple(home, QByteArray(), home + "/.local/share"),
                                            {relative, home + "/xdg", home + "/xdg"},
                                            {"", relative, ""},
                                            {path.toUtf8() + "/home", "", ""}}) {
    qputenv("HOME", userHome);
    qputenv("XDG_DATA_HOME", xdg);
    EXPECT_EQ(Datenwurzel(), root) << userHome.data() << " " << xdg.data();
    EXPECT_TRUE(root.isEmpty() || QDir(root).exists());
  }
}

}  // namespace

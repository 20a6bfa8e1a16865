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

  /// Each operation tells the failure in its own way and changes nothing.
  void TellAll(const char *what) {
    told << what << "\n";
    SpeichereSpielstand(screen, path);
    Tell("  save");
    BestenlisteSpeichern(screen);
    Tell("  save the list");
    SchreibeIni();
    BestenlisteAnlegen();
    Tell("  write settings and defaults");
    LadeSpielstand(screen, path);
    Tell("  load");
    BestenlisteLaden(screen);
    Tell("  load the list");
    EXPECT_EQ(spiel.Bestenschwelle, 77);
  }
};

TEST_F(Failure, SomethingIsMissingOrAFolderOrBrokenOrLong) {
  LadeSpielstand(screen, path);
  BestenlisteLaden(screen);
  Tell("no file");
  for (const QString &file : files)
    QDir().mkdir(file);
  TellAll("folders");
  QDir(data).removeRecursively();
  TellAll("no folder");
  QDir().mkdir(data);
  for (const QString &file : files)
    QFile::link("/proc/self/mem", file);  // A file whose first byte cannot be read.
  TellAll("unreadable");
  for (const int length : {248, 304}) {
    SpeichereSpielstand(screen, data + "/" + QString(length, 'x'));
    Tell(QByteArray::number(length) + " signs");
  }
}

TEST_F(Failure, TheDiskIsFullOrDoesNotConfirmOrRightsAreMissing) {
  for (const QString &file : files)
    WriteFile(file, "old");
  writeError = ENOSPC;
  TellAll("full");
  writeError = 0;
  syncError = EIO;
  TellAll("not confirmed");
  syncError = 0;
  refused = O_CLOEXEC;  // Each file is opened with it.
  TellAll("no rights");
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
  QFile::remove(path);
  QFile::link(link, path);
  Tell("links");
  SpeichereSpielstand(screen, link);
  Tell("loop");
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

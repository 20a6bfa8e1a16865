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
#include "persistence/modDateiHandling.h"
#include "platform/datenwurzel.h"
#include "tests/persistence/fixture.h"

namespace {

/// From now on a system call fails in this process, as it does on a disk that is full or broken.
bool BreakSystemCall(std::uint32_t call, std::uint32_t error) {
  sock_filter commands[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  };
  const sock_fprog filter{std::size(commands), commands};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

class Failure : public DataFixture {
 protected:
  QTemporaryDir shared{"/dev/shm/failure-XXXXXX"};  // Any user may go there.
  QString data = shared.filePath("data");
  QString sar = data + "/spiel.sar";

  Failure() {
    chmod(qPrintable(shared.path()), 0755);
    QDir().mkdir(data);
    spiel.Datenordner = data.toStdString();
    spiel.Beste.lstPunkte = {"5", "4", "3", "2", "1"};
    spiel.Bestenschwelle = 77;
  }

  QStringList Files() const { return {sar, IniPfad(), BestenlistePfad()}; }
  void WriteOldFiles() {
    for (const QString &path : Files())
      WriteFile(path, "old");
  }
  void ExpectOldFiles() {
    for (const QString &path : Files())
      EXPECT_EQ(ReadFile(path), "old");
    EXPECT_EQ(QDir(data).entryList(QDir::Files | QDir::Hidden).size(), 3) << "no remains";
  }

  /// Each operation tells the failure in its own way and changes nothing.
  void ExpectWriteError(int number) {
    SpeichereSpielstand(screen, sar);
    ExpectMessage(MeldungSchreibfehler(number));
    BestenlisteSpeichern(screen);
    ExpectMessage(MeldungBesteNichtGespeichert);
    EXPECT_EQ(spiel.Bestenschwelle, 77);
    SchreibeIni();
    BestenlisteAnlegen();
    EXPECT_TRUE(screen.messages.empty());
  }
  void ExpectReadError(int number) {
    LadeSpielstand(screen, sar);
    ExpectMessage(MeldungLesefehler(number));
    BestenlisteLaden(screen);
    ExpectMessage(MeldungBesteNichtGelesen(number));
  }
};

TEST_F(Failure, SomethingIsMissingOrAFolderOrBroken) {
  ExpectReadError(1);
  for (const QString &path : Files())
    QDir().mkdir(path);
  ExpectReadError(2);
  ExpectWriteError(2);
  QDir(data).removeRecursively();
  ExpectReadError(3);
  ExpectWriteError(3);
  QDir().mkdir(data);
  for (const QString &path : {sar, BestenlistePfad()})
    QFile::link("/proc/self/mem", path);  // A file whose first byte cannot be read.
  ExpectReadError(8);
}

TEST_F(Failure, RightsAreMissing) {
  WriteOldFiles();
  chmod(qPrintable(data), 0777);
  const QString writable = shared.filePath("writable.sar");  // In a folder that is not.
  WriteFile(writable, "old");
  chmod(qPrintable(writable), 0666);
  for (const QString &path : Files())
    chmod(qPrintable(path), 0);
  const uid_t real = getuid();  // Root may do everything.
  const uid_t nobody = real == 0 ? 65534 : real;
  ASSERT_EQ(setresuid(nobody, nobody, real), 0);
  ExpectWriteError(2);
  ExpectReadError(2);
  spiel.Level = 3;
  SpeichereSpielstand(screen, writable);
  EXPECT_TRUE(screen.messages.empty());
  ASSERT_EQ(setresuid(real, real, real), 0);
  for (const QString &path : Files())
    chmod(qPrintable(path), 0600);
  ExpectOldFiles();
  EXPECT_EQ(ReadFile(writable).left(1), "3");
}

TEST_F(Failure, TheDiskIsFullOrDoesNotConfirm) {
  const struct {
    std::uint32_t call, error;
    int number;
  } cases[] = {{SYS_write, ENOSPC, 4}, {SYS_fsync, EIO, 8}};
  WriteOldFiles();
  for (const auto &[call, error, number] : cases) {
    const pid_t child = fork();
    if (child == 0) {
      const bool broken = BreakSystemCall(call, error);
      ExpectWriteError(number);
      _exit(broken && !HasFailure() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0) << number;
    ExpectOldFiles();
  }
}

TEST_F(Failure, ALongName) {
  for (const auto &[letters, fits] : {std::pair(244, true), {300, false}}) {
    sar = data + "/" + QString(letters, 'x') + ".sar";
    SpeichereSpielstand(screen, sar);
    EXPECT_EQ(screen.messages.empty(), fits);
  }
  ExpectMessage(MeldungSchreibfehler(8));
}

TEST_F(Failure, LinksAndModesStay) {
  const auto Path = [&](const char *name) { return data + "/" + name; };
  QFile::link(Path("b.sar"), Path("a.sar"));
  QFile::link(Path("c.sar"), Path("b.sar"));
  SpeichereSpielstand(screen, Path("a.sar"));  // It leads to a file that does not exist yet.
  chmod(qPrintable(Path("c.sar")), 0640);
  spiel.Level = 9;
  SpeichereSpielstand(screen, Path("a.sar"));
  EXPECT_EQ(ReadFile(Path("c.sar")).left(1), "9");
  EXPECT_TRUE(QFileInfo(Path("b.sar")).isSymLink());
  struct stat state = {};
  stat(qPrintable(Path("c.sar")), &state);
  EXPECT_EQ(state.st_mode & 0777U, 0640U);
  QFile::remove(Path("c.sar"));
  QFile::link(Path("a.sar"), Path("c.sar"));
  EXPECT_TRUE(screen.messages.empty());
  SpeichereSpielstand(screen, Path("a.sar"));  // A loop.
  ExpectMessage(MeldungSchreibfehler(2));
  EXPECT_TRUE(QFileInfo(Path("c.sar")).isSymLink());
}

TEST_F(Failure, TheEnvironmentDecidesWhereTheDataLie) {
  WriteFile(folder.filePath("file"), "");
  const QByteArray home = folder.path().toUtf8();
  const struct {
    QByteArray home, xdg, root;
  } cases[] = {
      {home, "", home + "/.local/share"},  // Created on the way.
      {"kein/voller/pfad", home + "/xdg", home + "/xdg"},
      {"", "kein/voller/pfad", ""},
      {"kein/voller/pfad", "", ""},
      {home + "/file/home", "", ""},  // A home directory that cannot exist.
  };
  for (const auto &c : cases) {
    qputenv("HOME", c.home);
    qputenv("XDG_DATA_HOME", c.xdg);
    EXPECT_EQ(Datenwurzel(), c.root) << c.home.data() << " " << c.xdg.data();
    EXPECT_TRUE(c.root.isEmpty() || QDir(c.root).exists());
  }
}

}  // namespace

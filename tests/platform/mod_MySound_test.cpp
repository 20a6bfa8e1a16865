#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>

#include "platform/mod_MySound.h"
#include "tests/platform/dateien.h"

namespace {

void Warte(int millisekunden) {
  QEventLoop schleife;
  QTimer::singleShot(millisekunden, &schleife, &QEventLoop::quit);
  schleife.exec();
}

/// Milliseconds of a recording, 8 bits at 8000 a second, in which something is heard.
qsizetype Hoerbar(const QByteArray &aufnahme) {
  constexpr char stille = '\x80';
  return (aufnahme.size() - aufnahme.count(stille)) / 8;
}

}  // namespace

// One test, since Qt looks for the sound server only once in the life of a process.
TEST(Klang, EchterSoundserver) {
  const QTemporaryDir ordner;
  const QString adresse = ordner.filePath("s");
  qputenv("PULSE_SERVER", "unix:" + adresse.toUtf8());
  qputenv("XDG_RUNTIME_DIR", ordner.path().toUtf8());
  QProcess server;
  server.start("pulseaudio", {"-n", "--daemonize=no", "--system=false", "--exit-idle-time=-1",
                              "--load=module-null-sink sink_name=leer",
                              "--load=module-native-protocol-unix socket=" + adresse});
  if (!server.waitForStarted()) {
    GTEST_SKIP() << "pulseaudio is not installed";
  }
  for (int i = 0; i < 100 && !QFile::exists(adresse); ++i) {
    Warte(50);
  }
  QProcess ohr;
  ohr.start("parec", {"-d", "leer.monitor", "--format=u8", "--channels=1", "--latency-msec=50",
                      "--rate=8000"});
  QProcess::execute("sox", {"-D", "-n", "-b16", ordner.filePath("FRAGE.WAV"), "synth", "3", "sin",
                            "500", "vol", "0.5"});
  QProcess::execute("sox", {"-D", "-n", "-b16", ordner.filePath("BLIP.WAV"), "trim", "0", "0.3"});
  SoundVorbereiten(ordner.path());
  ASSERT_TRUE(SoundGeraetDa());
  for (const int stumm : {0, 1, 7}) {
    SpieleSound(stumm);
  }
  Warte(1500);  // The recording starts late, but then it is in time.
  EXPECT_EQ(Hoerbar(ohr.readAllStandardOutput()), 0);

  QElapsedTimer uhr;
  uhr.start();
  SpieleSound(2);
  EXPECT_LT(uhr.elapsed(), 100) << "must not block";
  Warte(600);
  SpieleSound(4);
  Warte(1500);
  const qsizetype gehoert = Hoerbar(ohr.readAllStandardOutput());
  EXPECT_GT(gehoert, 50);
  EXPECT_LT(gehoert, 1500) << "must be cut off";

  server.terminate();
  server.waitForFinished();
  uhr.restart();
  SpieleSound(2);
  EXPECT_LT(uhr.elapsed(), 100) << "a lost device only silences";
  ohr.waitForFinished();
}

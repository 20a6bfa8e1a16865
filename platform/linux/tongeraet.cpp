#include "platform/tongeraet.h"

#include <QCoreApplication>
#include <QLibrary>

#include "platform/mod_MySound.h"

namespace {

/// What klang.cpp offers; nothing if its library is missing, and the game is silent then.
struct Klang {
  bool (*geraetDa)() = nullptr;
  void (*spiele)(const QString &pfad) = nullptr;

  Klang() {
    const QString hier = QCoreApplication::applicationDirPath();
    for (const QString &ordner : {hier, hier + "/../" KLANGORDNER}) {
      QLibrary bibliothek(ordner + "/libklang.so");
      bibliothek.setLoadHints(QLibrary::PreventUnloadHint);
      if (!bibliothek.load())
        continue;
      geraetDa = reinterpret_cast<decltype(geraetDa)>(bibliothek.resolve("KlangGeraetDa"));
      spiele = reinterpret_cast<decltype(spiele)>(bibliothek.resolve("KlangSpiele"));
      return;
    }
  }
};

const Klang &DerKlang() {
  static const Klang klang;
  return klang;
}

}  // namespace

bool SoundGeraetDa() {
  return DerKlang().geraetDa && DerKlang().geraetDa();
}

void SpieleWellendatei(const QString &pfad) {
  if (const auto spiele = DerKlang().spiele)
    spiele(pfad);
}

/// @file
/// The real windows on a screen that nobody sees, with their files in a folder of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "controls/bild.h"
#include "core/spiel.h"
#include "dialogs/frmMsg.h"
#include "shell/frmSpielfeld.h"
#include "tests/platform/dateien.h"

/// The program in its waiting state, as at the start of the process.
class Fensterprobe : public testing::Test {
 protected:
  Fensterprobe();
  ~Fensterprobe() override;

  /// Acts on the next modal window of a kind. What is announced happens in its order, each action
  /// as soon as its window is there; a window that nothing was announced for fails the test and
  /// closes.
  template <class Fenster>
  void Dann(std::function<void(Fenster &)> handlung) {
    geplant.push_back([handlung](QWidget *fenster) {
      if (auto *erwartet = qobject_cast<Fenster *>(fenster))
        return handlung(*erwartet);
      ADD_FAILURE() << fenster->metaObject()->className();
      fenster->close();
    });
  }
  /// Answers the next question by a key.
  void DannAntworte(const char *taste) {
    Dann<Meldefenster>([taste](Meldefenster &fenster) { Druecke(fenster, taste); });
  }

  template <class Element = Bild>
  static Element *Finde(QWidget &fenster, const QString &name) {
    auto *element = fenster.findChild<Element *>(name);
    EXPECT_NE(element, nullptr) << name.toStdString();
    return element;
  }
  static void Druecke(QWidget &fenster, const QString &taste) {
    const QKeyCombination tasten = QKeySequence(taste)[0];
    QTest::keyClick(&fenster, tasten.key(), tasten.keyboardModifiers());
  }
  static void Klick(QWidget *ziel) { QTest::mouseClick(ziel, Qt::LeftButton); }
  void Klick(const QString &name) { Klick(Finde(*spielfeld, name)); }
  static QString Text(QWidget &fenster, const QString &name) {
    return Finde<QLabel>(fenster, name)->text();
  }
  /// Opens cells until the level of a game just begun is lost.
  void Verliere() {
    for (int n = 1; n <= kZellen; ++n)
      Klick("imgSar" + QString::number(n));
    ASSERT_TRUE(spielfeld->IstSichtbar(Bedienung::cmdWiederholen));
  }
  QString Datei(const QString &name) const { return ordner.path() + "/nachtkammern/" + name; }

  QTemporaryDir ordner;
  std::unique_ptr<frmSpielfeld> spielfeld;

 private:
  void BedieneFenster();

  std::deque<std::function<void(QWidget *)>> geplant;
  std::vector<QPointer<QWidget>> bedient;  ///< Open modal windows that were acted on.
  QTimer takt;
};

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
#include <vector>

#include "core/spiel.h"
#include "dialogs/bild.h"
#include "dialogs/frmMsg.h"
#include "shell/frmSpielfeld.h"

class Fensterprobe : public testing::Test {
 protected:
  Fensterprobe();
  ~Fensterprobe() override;

  /// Brings the program to its waiting state, as at the start of the process.
  void Starte();

  /// Acts on the next modal window of a kind. What is announced happens in its order, each action
  /// as soon as its window is there; a window that nothing was announced for fails the test and
  /// closes.
  template <class Fenster>
  void Dann(std::function<void(Fenster &)> handlung) {
    geplant.push_back([handlung](QWidget *fenster) {
      auto *erwartet = qobject_cast<Fenster *>(fenster);
      EXPECT_NE(erwartet, nullptr) << fenster->metaObject()->className();
      if (erwartet)
        handlung(*erwartet);
      else
        fenster->close();
    });
  }
  /// Answers the next question by a key: J, N or Esc.
  void DannAntworte(Qt::Key taste) {
    Dann<Meldefenster>([taste](Meldefenster &fenster) { QTest::keyClick(&fenster, taste); });
  }

  template <class Element = Bild>
  static Element *Finde(QWidget &fenster, const QString &name) {
    auto *element = fenster.findChild<Element *>(name);
    EXPECT_NE(element, nullptr) << name.toStdString();
    return element;
  }
  Bild *Zelle(int n) { return Finde(*spielfeld, "imgSar" + QString::number(n)); }
  static void Klick(QWidget *ziel, Qt::MouseButton taste = Qt::LeftButton) {
    QTest::mouseClick(ziel, taste);
  }
  void Klick(const QString &name) { Klick(Finde(*spielfeld, name)); }
  static QString Text(QWidget &fenster, const QString &name) {
    return Finde<QLabel>(fenster, name)->text();
  }

  void GewinneLevel();
  void VerliereLevel();

  QString Datei(const QString &name) const { return ordner.path() + "/nachtkammern/" + name; }
  static QByteArray Inhalt(const QString &pfad);
  static void Schreibe(const QString &pfad, const QByteArray &inhalt);

  QTemporaryDir ordner;
  std::unique_ptr<frmSpielfeld> spielfeld;
  int gesehen = 0;  ///< Modal windows that were acted on.

 private:
  void BedieneFenster();

  std::deque<std::function<void(QWidget *)>> geplant;
  std::vector<QPointer<QWidget>> bedient;  ///< Open modal windows that were acted on.
  QTimer takt;
};

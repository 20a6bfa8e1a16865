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
#include "tests/files.h"

/// The program in its waiting state, as at the start of the process.
class WindowFixture : public testing::Test {
 protected:
  WindowFixture();
  ~WindowFixture() override;

  /// Acts on the next modal window of a kind. What is announced happens in its order, each action
  /// as soon as its window is there; a window that nothing was announced for fails the test and
  /// closes.
  template <class Fenster>
  void Then(std::function<void(Fenster &)> action) {
    planned.push_back([action](QWidget *fenster) {
      if (auto *erwartet = qobject_cast<Fenster *>(fenster))
        return action(*erwartet);
      ADD_FAILURE() << fenster->metaObject()->className();
      fenster->close();
    });
  }
  /// Answers the next question by a key.
  void ThenAnswer(const char *taste) {
    Then<Meldefenster>([taste](Meldefenster &fenster) { Press(fenster, taste); });
  }

  template <class Element = Bild>
  static Element *Find(QWidget &fenster, const QString &name) {
    auto *element = fenster.findChild<Element *>(name);
    EXPECT_NE(element, nullptr) << name.toStdString();
    return element;
  }
  static void Press(QWidget &fenster, const QString &taste) {
    const QKeyCombination tasten = QKeySequence(taste)[0];
    QTest::keyClick(&fenster, tasten.key(), tasten.keyboardModifiers());
  }
  static void Click(QWidget *ziel) { QTest::mouseClick(ziel, Qt::LeftButton); }
  void Click(const QString &name) { Click(Find(*board, name)); }
  static QString Text(QWidget &fenster, const QString &name) {
    return Find<QLabel>(fenster, name)->text();
  }
  /// Opens cells until the level of a game just begun is lost.
  void Verliere() {
    for (int n = 1; n <= kZellen; ++n)
      Click("imgSar" + QString::number(n));
    ASSERT_TRUE(board->IstSichtbar(Bedienung::cmdWiederholen));
  }
  QString DataFile(const QString &name) const { return folder.path() + "/nachtkammern/" + name; }

  QTemporaryDir folder;
  std::unique_ptr<frmSpielfeld> board;

 private:
  void HandleWindow();

  std::deque<std::function<void(QWidget *)>> planned;
  std::vector<QPointer<QWidget>> handled;  ///< Open modal windows that were acted on.
  QTimer takt;
};

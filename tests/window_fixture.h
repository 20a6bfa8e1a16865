// The real windows on a screen that nobody sees, with their files in a folder of the test's own.
#pragma once

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>

#include "controls/bild.h"
#include "core/spiel.h"
#include "dialogs/frmMsg.h"
#include "shell/frmSpielfeld.h"
#include "shell/start.h"
#include "tests/approved.h"
#include "tests/files.h"

/// The program in its waiting state, as at the start of the process.
class WindowFixture : public testing::Test {
 protected:
  WindowFixture() {
    spiel = {};
    QObject::connect(&clock, &QTimer::timeout, [this] { HandleWindow(); });
    clock.start(1);
    board = std::make_unique<frmSpielfeld>();
    Main(*board, folder.path());
  }
  ~WindowFixture() override {
    EXPECT_TRUE(planned.empty()) << "a window that was expected did not open";
    board.reset();
    for (QWidget *window : QApplication::topLevelWidgets())
      delete window;
    qDeleteAll(QGuiApplication::topLevelWindows());  // The cover.
  }

  /// Acts on the next modal window of a kind. What is announced happens in its order, each action
  /// as soon as its window is there; a window that nothing was announced for fails the test.
  template <class Window>
  void Then(std::function<void(Window &)> action) {
    planned.push_back([action](QWidget *window) {
      if (auto *expected = qobject_cast<Window *>(window))
        return action(*expected);
      Refuse(window);
    });
  }
  /// Asks a question and acts on its window, which closes then.
  void Ask(const std::function<void(Meldefenster &)> &action) {
    Then<Meldefenster>([action](Meldefenster &window) {
      action(window);
      window.close();
    });
    board->Frage(FrageBeenden);
  }
  /// Answers the next question, or closes the next message, by a key.
  void ThenAnswer(const char *key) {
    Then<Meldefenster>([key](Meldefenster &window) { Press(window, key); });
  }

  template <class Element = Bild>
  static Element *Find(const QWidget &window, const QString &name) {
    auto *element = window.findChild<Element *>(name);
    EXPECT_NE(element, nullptr) << name.toStdString();
    return element;
  }
  static void Press(QWidget &window, const QString &key) {
    const QKeyCombination keys = QKeySequence(key)[0];
    QTest::keyClick(&window, keys.key(), keys.keyboardModifiers());
  }
  static void Click(QWidget *target) { QTest::mouseClick(target, Qt::LeftButton); }
  void Click(const QString &name) { Click(Find(*board, name)); }
  /// Opens cells until the level of a game just begun is lost.
  void Lose() {
    for (int n = 1; n <= kZellen; ++n)
      Click("imgSar" + QString::number(n));
    ASSERT_TRUE(board->IstSichtbar(Bedienung::cmdWiederholen));
  }
  QString DataFile(const QString &name) const { return folder.path() + "/nachtkammern/" + name; }

  QTemporaryDir folder;
  std::unique_ptr<frmSpielfeld> board;
  Transcript told;

 private:
  void HandleWindow() {
    QWidget *window = QApplication::activeModalWidget();
    std::erase_if(handled, [](const auto &w) { return !w || !w->isVisible(); });
    if (!window || std::find(handled.begin(), handled.end(), window) != handled.end())
      return;
    handled.emplace_back(window);
    if (planned.empty())
      return Refuse(window);
    const auto action = planned.front();
    planned.pop_front();
    // A timer does not tick while its own tick is handled, and the action may open the next window.
    QTimer::singleShot(0, window, [action, window = QPointer(window)] {
      action(window);
      if (window && window->isVisible())
        Refuse(window);
    });
  }
  /// Closes a window that should not be there, so that the test can go on.
  static void Refuse(QWidget *window) {
    QString words = window->windowTitle();
    for (const QLabel *label : window->findChildren<QLabel *>())
      words += " | " + label->text();
    ADD_FAILURE() << "unexpected: " << window->metaObject()->className() << " " << words;
    window->close();
  }

  std::deque<std::function<void(QWidget *)>> planned;
  std::vector<QPointer<QWidget>> handled;  ///< Open modal windows that were acted on.
  QTimer clock;
};

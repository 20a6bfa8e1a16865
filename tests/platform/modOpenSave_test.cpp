#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QDateTime>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <functional>

#include "platform/modOpenSave.h"
#include "tests/platform/dateien.h"

namespace {

using Oeffner = QString (*)(QWidget *);

/// Opens a dialog and lets a player act in it, who gives up in the end.
QString Bediene(Oeffner oeffner, const std::function<void(QFileDialog &, QLineEdit &)> &spieler) {
  QTimer::singleShot(0, [&] {
    auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    spieler(*dialog, *dialog->findChild<QLineEdit *>("fileNameEdit"));
    if (dialog->isVisible())
      dialog->reject();
  });
  return oeffner(nullptr);
}

}  // namespace

TEST(Dateidialog, NimmtJedenNamenOhneFrage) {
  const QTemporaryDir ordner;
  Lege(ordner.filePath("da.sar"), "");
  Dialogordner = ordner.path();
  for (const Oeffner oeffner : {DateiOeffnenDialog, DateiSpeichernDialog}) {
    for (const QString name : {"da.sar", "fehlt", "da.sar  ", "anders.txt"}) {
      const QString pfad = Bediene(oeffner, [&](QFileDialog &dialog, QLineEdit &eingabe) {
        eingabe.setText(name);
        QMetaObject::invokeMethod(&dialog, "accept");
        EXPECT_TRUE(dialog.isHidden()) << "it asks something";
      });
      EXPECT_EQ(pfad, ordner.filePath(name.trimmed()));
    }
    EXPECT_EQ(Bediene(oeffner, [](auto &, auto &) {}), "");
  }
}

TEST(Dateidialog, OhneOrdner) {
  const auto erwarteNamenlos = [](QFileDialog &, QLineEdit &eingabe) {
    EXPECT_EQ(eingabe.text(), "");
  };
  Dialogordner = "/gibt/es/nicht";
  Bediene(DateiOeffnenDialog, erwarteNamenlos);
  Dialogordner.clear();
  Bediene(DateiOeffnenDialog, erwarteNamenlos);
  EXPECT_EQ(Dialogordner, "");
  Bediene(DateiSpeichernDialog, erwarteNamenlos);
  EXPECT_EQ(Dialogordner, "/");
}

TEST(Dateidialog, SpaltenSindDeutsch) {
  const QTemporaryDir ordner;
  QFile datei(ordner.filePath("da.sar"));
  datei.open(QIODevice::WriteOnly);
  datei.setFileTime(QDateTime({2026, 5, 4}, {13, 2}), QFileDevice::FileModificationTime);
  Dialogordner = ordner.path();
  Bediene(DateiOeffnenDialog, [](QFileDialog &dialog, QLineEdit &) {
    const auto *liste = dialog.findChild<QTreeView *>("treeView");
    while (liste->model()->rowCount(liste->rootIndex()) == 0)
      QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(liste->model()->index(0, 1, liste->rootIndex()).data(), "0 Bytes");
    EXPECT_EQ(liste->model()->index(0, 3, liste->rootIndex()).data(), "04.05.26 13:02");
  });
}

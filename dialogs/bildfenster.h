/// @file
/// What all windows besides the main one share: a fixed size, a picture as background, their place
/// over the main window, and no meaning for Enter and Esc but one that the window gives itself. One
/// that waits for the player blocks the windows of the game, but not the cover behind them, whose
/// click must still bring back a game that was minimised meanwhile.
#pragma once

#include <QDialog>

#include "controls/masse.h"
#include "core/meldungen.h"

class Bildfenster : public QDialog {
  Q_OBJECT

 public:
  /// Moves the window to the place that belongs to it over the main window.
  void Platziere(const QWidget *hauptfenster, Lage lage);

 protected:
  /// @param hintergrund   a picture of the catalogue, drawn from the top left corner and cut off.
  Bildfenster(QWidget *eltern, Qt::WindowFlags art, const char *hintergrund, const Twips &groesse);

  void showEvent(QShowEvent *ereignis) override;
  void paintEvent(QPaintEvent *ereignis) override;
  void keyPressEvent(QKeyEvent *ereignis) override;

 private:
  const char *hintergrund_;
};

/// A fixed single border with a title and a closing box, but no boxes to minimise or maximise.
inline constexpr Qt::WindowFlags kFesterRahmen =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
    Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint;

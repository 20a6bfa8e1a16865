/// @file
/// What all windows besides the main one share: a fixed size, a picture as background, and no
/// meaning for Enter and Esc but one that the window gives itself.
#pragma once

#include <QDialog>

#include "dialogs/masse.h"

class Bildfenster : public QDialog {
  Q_OBJECT

 protected:
  /// @param hintergrund   a picture of the catalogue, drawn from the top left corner and cut off.
  Bildfenster(QWidget *eltern, Qt::WindowFlags art, const char *hintergrund, const Twips &groesse);

  void paintEvent(QPaintEvent *ereignis) override;
  void keyPressEvent(QKeyEvent *ereignis) override;

 private:
  const char *hintergrund_;
};

/// A fixed single border with a title and a closing box, but no boxes to minimise or maximise.
inline constexpr Qt::WindowFlags kFesterRahmen = Qt::Dialog | Qt::CustomizeWindowHint |
                                                 Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                                 Qt::WindowCloseButtonHint;

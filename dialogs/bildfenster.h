#pragma once

#include <QDialog>

#include "controls/masse.h"
#include "core/meldungen.h"

/// Base class of all windows except the main one and the cover: a window of fixed size with a
/// background picture. Enter and Esc do nothing unless a subclass handles them. A modal window does
/// not block the cover, whose click must be able to restore a minimised game.
class Bildfenster : public QDialog {
  Q_OBJECT

 public:
  /// Moves the window to its position relative to the main window. Call it before each show.
  void Platziere(const QWidget *hauptfenster, Fensterlage lage);
  int exec() override;
  /// Brings the modal window to the front under Wayland, where only a new window lies above others.
  void ZeigeErneut();

 protected:
  /// @param hintergrund   a picture of the catalogue, drawn at the top left corner and not scaled.
  Bildfenster(QWidget *eltern, Qt::WindowFlags art, const char *hintergrund, const Twips &groesse);

  /// Runs at each showing, but not when the window was minimised or covered.
  virtual void Form_Activate() { setFocus(); }  // Otherwise Qt focuses the first button.
  void showEvent(QShowEvent *ereignis) override;
  void paintEvent(QPaintEvent *ereignis) override;
  void keyPressEvent(QKeyEvent *ereignis) override;

 private:
  const char *hintergrund_;
  bool erneut_ = false;  ///< Hidden only to be shown again.
};

/// A title bar with a close button, but no buttons to minimise or maximise.
inline constexpr Qt::WindowFlags kFesterRahmen =
    Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
    Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint;

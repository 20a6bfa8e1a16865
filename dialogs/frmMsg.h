/// @file
/// The two message windows: `frmMsgJa` asks, `frmMsgOk` tells.
#pragma once

#include <cstdint>
#include <optional>

#include "core/meldungen.h"
#include "dialogs/bildfenster.h"

struct Meldelayout;

/// What both windows have in common: a frameless picture with two texts, which is moved by its
/// background and its title, and which waits for a key or a click.
class Meldefenster : public Bildfenster {
  Q_OBJECT

 public:
  /// Shows the window over the main window and returns when it has closed.
  void ZeigeUeber(QWidget *hauptfenster);

 protected:
  Meldefenster(const Meldelayout &layout, const Meldung &meldung);

  void mousePressEvent(QMouseEvent *ereignis) override;
  void mouseMoveEvent(QMouseEvent *ereignis) override;
  void keyPressEvent(QKeyEvent *ereignis) override;

 private:
  void Antworte(std::int16_t antwort);

  const Meldelayout &layout_;
  Lage lage_;
  std::optional<QPoint> griff_;  ///< Where the mouse holds the window, in its coordinates.
};

/// A question; `spiel.Antwort` holds the answer when the window has closed. Until the player has
/// answered it is "cancelled", however the window goes.
class frmMsgJa : public Meldefenster {
  Q_OBJECT

 public:
  explicit frmMsgJa(const Meldung &meldung);
};

/// An announcement; leaves `spiel.Antwort` alone.
class frmMsgOk : public Meldefenster {
  Q_OBJECT

 public:
  explicit frmMsgOk(const Meldung &meldung);
};

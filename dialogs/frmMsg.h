#pragma once

#include <cstdint>
#include <optional>

#include "core/meldungen.h"
#include "dialogs/bildfenster.h"

struct Meldelayout;

/// Base class of the two message windows: a frameless window with two texts. The mouse can drag it
/// by its background, except for the white panel.
class Meldefenster : public Bildfenster {
  Q_OBJECT

 public:
  /// Shows the window and returns when it has closed.
  void Zeige();

 protected:
  Meldefenster(QWidget *hauptfenster, const Meldelayout &layout, const Meldung &meldung);

  void mousePressEvent(QMouseEvent *ereignis) override;
  void mouseMoveEvent(QMouseEvent *ereignis) override;
  void keyPressEvent(QKeyEvent *ereignis) override;

 private:
  void Antworte(std::int16_t antwort);

  QWidget *hauptfenster_;
  const Meldelayout &layout_;
  Fensterlage lage_;
  std::optional<QPoint> griff_;  ///< Position of the press that drags the window.
};

/// A question. Stores the answer in `spiel.Antwort`; it is `kAbgebrochen` until the player answers.
class frmMsgJa : public Meldefenster {
  Q_OBJECT

 public:
  frmMsgJa(QWidget *hauptfenster, const Meldung &meldung);
};

/// An announcement. Does not change `spiel.Antwort`.
class frmMsgOk : public Meldefenster {
  Q_OBJECT

 public:
  frmMsgOk(QWidget *hauptfenster, const Meldung &meldung);
};

// Keys by their position on the keyboard, independent of its layout.
#pragma once

class QKeyEvent;

/// The scan code of a letter key, set 1: the same number for the same position on every system.
/// Source: the table "Scan 1 Make" of the USB HID to PS/2 translation.
unsigned Tastenplatz(const QKeyEvent &taste);

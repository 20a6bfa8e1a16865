/// @file
/// Keys by their place on the keyboard, whatever its layout writes there.
#pragma once

class QKeyEvent;

/// The scan code of the key, set 1: the same number for the same place on every system.
/// Source: the table "Scan 1 Make" of the USB HID to PS/2 translation.
unsigned Tastenplatz(const QKeyEvent &taste);

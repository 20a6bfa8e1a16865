// What takes a line or two on each system.
#pragma once

#include <QString>

class QKeyEvent;

/// The folder in which the program may create its data folder, without a closing separator. Empty
/// if there is none.
///
/// Windows: the drive of the Windows folder, as in "C:". Linux: the user's data directory, which is
/// created if it is missing; empty if no home directory is known, or if that directory cannot be
/// created. Source of the latter: freedesktop.org, XDG base directories.
QString Datenwurzel();

/// Opens a document in the default application for it and returns at once. Nothing happens if none
/// opens it.
void OeffneDokument(const QString &pfad);

/// Waits until the disk holds the content of a file; false if it reports an error.
/// @param datei   as QFileDevice::handle() returns it.
bool Synchronisiere(int datei);

/// The scan code of a letter key, set 1: the same number for the same position on every keyboard
/// layout and on every system.
/// Source: the table "Scan 1 Make" of the USB HID to PS/2 translation.
unsigned Tastenplatz(const QKeyEvent &taste);

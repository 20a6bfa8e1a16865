// Asks the disk to confirm what was written.
#pragma once

/// Waits until the disk holds the content of a file; false if it reports an error.
/// @param datei   as QFileDevice::handle() returns it.
bool Synchronisiere(int datei);

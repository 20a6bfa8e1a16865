/// @file
/// In what the file dialogs differ between systems.
#pragma once

class QFileDialog;

/// Keeps Qt from remembering anything of the dialogs. Must be called before one is made.
///
/// Windows: does nothing. The system's dialog remembers for itself, and Qt in the registry.
void MerkeNichts();

/// Shows a dialog that is ready but for its look, and waits for it; true if a name was chosen.
///
/// Windows: the system's own dialog. Other systems: Qt's, which is German on a machine of any
/// language.
bool ZeigeDateidialog(QFileDialog &dialog);

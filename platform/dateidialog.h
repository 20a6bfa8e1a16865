/// @file
/// In what the file dialogs differ between systems.
#pragma once

class QFileDialog;

/// Shows a dialog that is ready but for its look, and waits for it; true if a name was chosen.
///
/// Windows: the system's own dialog. Other systems: Qt's, which is German on a machine of any
/// language.
bool ZeigeDateidialog(QFileDialog &dialog);

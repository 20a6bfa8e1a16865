/// @file
/// In what the file dialogs differ between systems.
#pragma once

class QFileDialog;

/// Windows: the system's own dialog. Other systems: Qt's, which is German on a machine of any
/// language.
void RichteDateidialogEin(QFileDialog &dialog);

/// @file
/// The help pages that lie beside the program.
#pragma once

#include <QString>

/// Opens a help page in the desktop's application for it; does nothing if the page is missing.
void OeffneHilfe(const QString &name);

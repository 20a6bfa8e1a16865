// Help pages, shown by another program.
#pragma once

#include <QString>

/// Opens a help page in the default application for it and returns at once. Nothing happens if the
/// page is missing or no application opens it.
void OeffneHilfe(const QString &name);

/// @file
/// Documents that another program shows.
#pragma once

#include <QString>

/// Opens a document in the default application for it and returns at once. If the system has
/// nothing that opens documents, the player is told where this one lies. Other failures are
/// ignored.
void OeffneDokument(const QString &pfad);

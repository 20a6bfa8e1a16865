/// @file
/// Documents that another program shows.
#pragma once

#include <QString>

/// Opens a document in the default application for it and returns at once. A failure is ignored.
void OeffneDokument(const QString &pfad);

/// @file
/// Existence and creation of paths.
#pragma once

#include <QString>

/// False only if nothing of that name lies in a folder that exists, or if the path is empty. A
/// folder counts as existing; so do a file that may not be looked at and a path through a missing
/// folder.
bool ExistiertDatei(const QString &pfad);

/// Creates one folder in a folder that exists; false if that fails.
bool ErstelleOrdner(const QString &pfad);

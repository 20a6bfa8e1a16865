// Test of a path.
#pragma once

#include <QString>

/// False for an empty path and if a folder that exists holds nothing of that name. Anything else is
/// true: a folder, a file without read permission, a path through a missing folder. A link counts
/// as what it leads to.
bool ExistiertDatei(const QString &pfad);

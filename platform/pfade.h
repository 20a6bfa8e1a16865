// Paths and the folder of the game's resources.
#pragma once

#include <QString>

/// Appends a separator unless the folder ends in one, so that a file name can follow. An empty path
/// stays empty: a separator alone would be the root.
QString MitBackslash(const QString &pfad);

/// The folder of the files that come with the program (sounds, help pages), without a closing
/// separator: `<prefix>/share/glanzgrube` if the executable is in `<prefix>/bin` or
/// `<prefix>/games` and that folder exists, else the folder of the executable.
QString Ressourcenordner();

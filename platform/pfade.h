/// @file
/// Folders that the program knows. All paths are UTF-16 as Qt has them.
#pragma once

#include <QString>

/// Returns a folder with exactly one closing separator, ready for a file name behind it. An empty
/// path stays empty, since a lone separator would lead to the root.
QString MitBackslash(const QString &pfad);

/// The folder of the files that the program only reads (sounds, documents), without a closing
/// separator: `<prefix>/share/glanzgrube` if the executable stands in `<prefix>/bin` or
/// `<prefix>/games` and that folder exists, else the folder of the executable.
QString Ressourcenordner();

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
QString Programmordner();

/// The folder in which the program may create a data folder of its own, without a closing
/// separator. Empty when the system gives none.
///
/// Windows: the drive of the Windows folder, as in "C:". Other systems: the user's data directory,
/// which exists when this returns; none if no home directory is known, or if it cannot hold that
/// directory. Source of the latter: freedesktop.org, XDG base directories.
QString Datenwurzel();

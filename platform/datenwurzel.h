// The parent of the data folder.
#pragma once

#include <QString>

/// The folder in which the program may create its data folder, without a closing separator. Empty
/// if there is none.
///
/// Windows: the drive of the Windows folder, as in "C:". Other systems: the user's data directory,
/// which is created if it is missing; empty if no home directory is known, or if that directory
/// cannot be created. Source of the latter: freedesktop.org, XDG base directories.
QString Datenwurzel();

/// @file
/// Where a program may keep what outlives it.
#pragma once

#include <QString>

/// The folder in which the program may create a data folder of its own, without a closing
/// separator. Empty when the system gives none.
///
/// Windows: the drive of the Windows folder, as in "C:". Other systems: the user's data directory,
/// which exists when this returns; none if no home directory is known, or if it cannot hold that
/// directory. Source of the latter: freedesktop.org, XDG base directories.
QString Datenwurzel();

/// @file
/// Files that are written whole or not at all.
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/dateifehler.h"

/// Puts a file in the place of another, or makes a new one. After any failure, even the end of the
/// process, the old file is still there; after success the disk has confirmed the new one.
Dateifehler ErsetzeDatei(const QString &pfad, const QByteArray &inhalt);

// The two file dialogs.
#pragma once

#include <QString>

class QWidget;

inline const QString kSpielendung = ".sar";  ///< The end of the name of a saved game.

/// Both let the player choose any name, existing or not, and do not ask before a file is replaced.
/// They return the full path without leading and trailing blanks, or an empty text if the player
/// cancels. The folder that the player went to is not remembered.
/// @param besitzer   the window that the dialog blocks.
/// @param ordner     where the dialog opens. If empty, the save dialog opens at the root of the
///                   program's drive.
QString DateiOeffnenDialog(QWidget *besitzer, const QString &ordner);
QString DateiSpeichernDialog(QWidget *besitzer, const QString &ordner);

/// The name of a file without its folder.
QString Dateititel(const QString &pfad);

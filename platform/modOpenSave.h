/// @file
/// The two file dialogs.
#pragma once

#include <QString>

class QWidget;

/// Both open in a folder and let the player choose any name, existing or not, and ask nothing about
/// it. They return the full path without leading and trailing blanks, or an empty text when the
/// player cancels. Where the player goes from there is not remembered.
/// @param besitzer   the window that waits for the dialog.
/// @param ordner     if empty, the save dialog opens at the root of the program's drive.
QString DateiOeffnenDialog(QWidget *besitzer, const QString &ordner);
QString DateiSpeichernDialog(QWidget *besitzer, const QString &ordner);

/// The name of a file without its folder.
QString Dateititel(const QString &pfad);

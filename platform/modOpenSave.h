/// @file
/// The two file dialogs.
#pragma once

#include <QString>

class QWidget;

/// The folder in which both dialogs open. Where the player goes from there is not remembered.
inline QString Dialogordner;

/// Both let the player choose any name, existing or not, and ask nothing about it. They return the
/// full path without leading and trailing blanks, or an empty text when the player cancels. The
/// save dialog opens at the root of the program's drive, from then on, if `Dialogordner` is empty.
/// @param besitzer   the window that waits for the dialog.
QString DateiOeffnenDialog(QWidget *besitzer);
QString DateiSpeichernDialog(QWidget *besitzer);

/// The name of a file without its folder.
QString Dateititel(const QString &pfad);

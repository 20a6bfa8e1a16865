// The file dialog.
#pragma once

#include <QFileDialog>
#include <QString>

/// Lets the player choose a game file, existing or not, and asks nothing about it. Returns its full
/// path; empty if the player cancels.
///
/// Windows: the system's own dialog. Other systems: Qt's, in German on a machine of any language.
/// @param ordner   the folder in which the dialog opens; empty if it does not matter.
/// @param filter   names the files that the dialog lists.
QString WaehleSpieldatei(QFileDialog::AcceptMode modus, QWidget *besitzer, const QString &titel,
                         const QString &ordner, const QString &filter);

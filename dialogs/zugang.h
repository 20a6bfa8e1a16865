// Accessibility of the game's own controls.
#pragma once

class QString;
class QWidget;

/// Makes pictures, digit rows and windows of the game accessible. Pictures without a name and
/// hidden controls do not appear in the accessibility tree.
void RichteZugangEin();

/// Lets a screen reader speak a text at once. Does nothing without assistive technology.
/// @param element   what the text is about, a control of the window in use.
void SageAn(QWidget *element, const QString &text);

/// Sets the focus policy of the buttons of a window: Tab reaches them while assistive technology is
/// active. Space presses the focused button, see Bild.
void ErlaubeTab(QWidget *fenster);

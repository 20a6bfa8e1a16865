// Positions and sizes. The tables of the windows are in twips, 15 to a pixel.
#pragma once

#include <QRect>

class QWidget;

/// A position in twips, relative to the parent's client area.
struct Twips {
  int left;
  int top;
  int width = 0;
  int height = 0;
};

/// Scale factor of all windows and pictures; 1, the size given in the tables, at the start.
double Massstab();
/// Call it before the first window or picture is made. @param faktor   above 0.
void StelleMassstab(double faktor);

/// Converts to logical pixels and rounds.
int Pixel(int twips);
QRect Rechteck(const Twips &lage);

/// Keeps the size of a window in logical pixels when it moves to a screen with another device pixel
/// ratio. Without this, the X server keeps the limits that Qt has set in device pixels.
void BehalteGroesse(QWidget *fenster);

/// @file
/// Measures: all positions in the tables of the windows are twips, 15 to the pixel.
#pragma once

#include <QRect>

/// A position in twips, relative to the parent's client area.
struct Twips {
  int left;
  int top;
  int width = 0;
  int height = 0;
};

/// The size of every window and picture as a part of what is told; 1 at the start.
double Massstab();
/// Must be called before the first window or picture is made. @param faktor above 0.
void StelleMassstab(double faktor);

/// The pixels of a length, rounded to the nearest.
int Pixel(int twips);
/// The rectangle of a position in pixels.
QRect Rechteck(const Twips &lage);

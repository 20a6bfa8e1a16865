/// @file
/// Work that the first look at a window does not wait for.
#pragma once

#include <functional>

class QWidget;

/// Does something once, as soon as a window has been painted for the first time. Never, if the
/// window is not shown.
void NachErstemBlick(QWidget *fenster, const std::function<void()> &tat);

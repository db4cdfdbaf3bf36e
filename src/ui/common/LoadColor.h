#pragma once
// The green-to-amber-to-red colour of every load figure, in the panel and in
// the tray icon alike.

#include <QColor>

// `f` is clamped to 0..1 (not-a-number counts as 0).
QColor loadColor(double f);

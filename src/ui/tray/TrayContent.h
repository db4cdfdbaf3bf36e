#pragma once
// What the tray item shows, computed from the model: the label for hosts that
// draw one, the icon for hosts that do not (the shown mood's emoji, or the two
// loads in numbers mode), and the title and tooltip with the phrase, the
// reason and the two loads.

#include <QImage>
#include <QList>
#include <QString>

class Localizer;
class SystemMonitor;

namespace TrayContent {

struct Texts {
    QString label;
    // The widest label of the current mode, so a host can keep its room steady.
    QString guide;
    // Title and tooltip: the mood part changes with the mood and the
    // language, the loads part with every tick.
    QString moodLine;   // "😎 all chill"
    QString reasonLine; // "from light load"
    QString loadsLine;  // "CPU 7% · Memory 43%"
    // What the icon shows; equal keys draw equal icons.
    QString iconKey;

    QString title() const;
    QString toolTipTitle() const { return moodLine; }
    QString toolTipText() const;
    bool operator==(const Texts &) const = default;
};

Texts texts(const SystemMonitor &monitor, const Localizer &loc, bool moodEnabled);

// The icon for an icon key at each size (square, ARGB32 premultiplied).
QList<QImage> icon(const QString &iconKey, const QList<int> &sizes);

// The sizes put on the bus; hosts pick the nearest.
const QList<int> &iconSizes();

// One image: the emoji, centred; or the two loads stacked, CPU on top,
// each in its load colour.
QImage emojiImage(const QString &emoji, int size);
QImage loadsImage(const QString &cpu, const QString &memory, int size);

} // namespace TrayContent

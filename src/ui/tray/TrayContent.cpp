#include "ui/tray/TrayContent.h"

#include "l10n/Fmt.h"
#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "ui/MenuBarLabel.h"
#include "ui/common/LoadColor.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace TrayContent {

namespace {

const QString emojiPrefix = QStringLiteral("emoji:");
const QString loadsPrefix = QStringLiteral("loads:");
const QString dot = QStringLiteral(" · ");

QImage blank(int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

QString Texts::title() const
{
    return QStringLiteral("sulkbox") + dot + moodLine + dot + reasonLine + dot + loadsLine;
}

QString Texts::toolTipText() const
{
    return reasonLine + u'\n' + loadsLine;
}

Texts texts(const SystemMonitor &monitor, const Localizer &loc, bool moodEnabled)
{
    const Mood &shown = monitor.reactionOrMood();
    const QString cpu = Fmt::fixed(monitor.cpu().total * 100, 0);
    const QString memory = Fmt::fixed(monitor.memory().pressure * 100, 0);
    const QString cpuPercent = cpu + u'%';
    const QString memoryPercent = memory + u'%';
    static const QString widestLoads = Fmt::percent(1, 0) + QStringLiteral("  ") + Fmt::percent(1, 0);

    Texts t;
    t.moodLine = MenuBarLabel::text(monitor, loc, true);
    t.label = moodEnabled ? t.moodLine : MenuBarLabel::text(monitor, loc, false);
    t.guide = moodEnabled ? t.label : widestLoads;
    t.reasonLine = MenuBarLabel::reason(shown, loc);
    t.loadsLine = QStringLiteral("CPU ") + cpuPercent + dot + loc.t(LocKey::memory) + u' ' + memoryPercent;
    t.iconKey = moodEnabled ? emojiPrefix + shown.emoji() : loadsPrefix + cpu + u':' + memory;
    return t;
}

const QList<int> &iconSizes()
{
    static const QList<int> sizes = {22, 32, 48};
    return sizes;
}

QImage emojiImage(const QString &emoji, int size)
{
    QImage image = blank(size);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    QFont font(QStringLiteral("Noto Color Emoji"));
    font.setPixelSize(qMax(1, qRound(size * 0.78)));
    p.setFont(font);
    p.drawText(QRectF(0, 0, size, size), Qt::AlignCenter, emoji);
    return image;
}

QImage loadsImage(const QString &cpu, const QString &memory, int size)
{
    QImage image = blank(size);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);

    // Two lines of digits that fill the square; "100" still fits its width.
    QFont font;
    font.setFamilies({QStringLiteral("DejaVu Sans Condensed"), QStringLiteral("Noto Sans"), QStringLiteral("sans-serif")});
    font.setStretch(QFont::SemiCondensed);
    font.setWeight(QFont::Bold);
    font.setPixelSize(qMax(1, int(size * 0.5)));
    QFontMetricsF metrics(font);
    const double widest = metrics.horizontalAdvance(QStringLiteral("100"));
    if (widest > size)
        font.setPixelSize(qMax(1, int(font.pixelSize() * size / widest)));

    const double half = size / 2.0;
    const QList<std::pair<QString, double>> lines = {{cpu, 0}, {memory, half}};
    for (const auto &[digits, top] : lines) {
        QPainterPath path;
        const QFontMetricsF m(font);
        const double x = (size - m.horizontalAdvance(digits)) / 2;
        const double y = top + (half + m.capHeight()) / 2;
        path.addText(QPointF(x, y), font, digits);
        // A thin dark rim keeps the digits readable on light and dark bars.
        p.setPen(QPen(QColor(0, 0, 0, 150), qMax(1.0, size / 22.0), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::NoBrush);
        p.drawPath(path);
        p.setPen(Qt::NoPen);
        p.setBrush(loadColor(digits.toDouble() / 100));
        p.drawPath(path);
    }
    return image;
}

QList<QImage> icon(const QString &iconKey, const QList<int> &sizes)
{
    QList<QImage> images;
    for (int size : sizes) {
        if (iconKey.startsWith(emojiPrefix)) {
            images.append(emojiImage(iconKey.mid(emojiPrefix.size()), size));
        } else if (iconKey.startsWith(loadsPrefix)) {
            const QStringList parts = iconKey.mid(loadsPrefix.size()).split(u':');
            images.append(loadsImage(parts.value(0), parts.value(1), size));
        } else {
            images.append(blank(size));
        }
    }
    return images;
}

} // namespace TrayContent

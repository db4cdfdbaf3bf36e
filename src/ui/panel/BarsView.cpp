#include "ui/panel/BarsView.h"

#include "ui/common/QmlFormat.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

BarsView::BarsView(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

QList<QRectF> BarsView::bars(const QList<qreal> &values, qreal w, qreal h, qreal spacing)
{
    QList<QRectF> out;
    const qsizetype n = values.size();
    if (n == 0 || w <= 0 || h <= 0)
        return out;
    qreal gap = n > 1 ? std::max(spacing, 0.0) : 0.0;
    if (n > 1 && w - gap * qreal(n - 1) < qreal(n))
        gap = std::max((w - qreal(n)) / qreal(n - 1), 0.0);
    const qreal barWidth = (w - gap * qreal(n - 1)) / qreal(n);
    out.reserve(n);
    for (qsizetype i = 0; i < n; ++i) {
        const qreal v = std::isfinite(values[i]) ? std::clamp(values[i], 0.0, 1.0) : 0.0;
        const qreal barHeight = std::min(std::max(minBarHeight, h * v), h);
        out << QRectF(qreal(i) * (barWidth + gap), h - barHeight, barWidth, barHeight);
    }
    return out;
}

void BarsView::setValues(const QList<qreal> &values)
{
    if (values == m_values)
        return;
    m_values = values;
    emit valuesChanged();
    update();
}

void BarsView::setSpacing(qreal spacing)
{
    if (spacing == m_spacing)
        return;
    m_spacing = spacing;
    emit spacingChanged();
    update();
}

void BarsView::setLoadColors(bool on)
{
    if (on == m_loadColors)
        return;
    m_loadColors = on;
    emit colorsChanged();
    update();
}

void BarsView::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    emit colorsChanged();
    update();
}

void BarsView::paint(QPainter *painter)
{
    const QList<QRectF> rects = bars(m_values, width(), height(), m_spacing);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    for (qsizetype i = 0; i < rects.size(); ++i) {
        painter->setBrush(m_loadColors ? ::loadColor(m_values[i]) : m_color);
        const qreal r = std::min({cornerRadius, rects[i].width() / 2, rects[i].height() / 2});
        painter->drawRoundedRect(rects[i], r, r);
    }
}

#include "ui/panel/Sparkline.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

// Readings that are not numbers count as nothing.
qreal clean(qreal v)
{
    return std::isfinite(v) ? v : 0.0;
}

} // namespace

Sparkline::Sparkline(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

qreal Sparkline::upperBound(const QList<qreal> &values, qreal maxValue)
{
    qreal upper = 1.0;
    if (maxValue > 0 && std::isfinite(maxValue)) {
        upper = maxValue;
    } else if (!values.isEmpty()) {
        upper = clean(values.first());
        for (qreal v : values)
            upper = std::max(upper, clean(v));
    }
    return std::max(upper, 0.0001);
}

QList<QPointF> Sparkline::points(const QList<qreal> &values, qreal maxValue, qreal w, qreal h)
{
    QList<QPointF> out;
    if (values.isEmpty())
        return out;
    const qreal upper = upperBound(values, maxValue);
    auto yOf = [&](qreal v) {
        const qreal r = clean(v) / upper;
        return r <= 0 ? h : h * (1 - std::min(r, 1.0));
    };
    if (values.size() == 1) {
        const qreal y = yOf(values.first());
        out << QPointF(0, y) << QPointF(w, y);
        return out;
    }
    const qsizetype n = values.size();
    out.reserve(n);
    for (qsizetype i = 0; i < n; ++i)
        out << QPointF(qreal(i) * w / qreal(n - 1), yOf(values[i]));
    return out;
}

void Sparkline::setValues(const QList<qreal> &values)
{
    if (values == m_values)
        return;
    m_values = values;
    emit valuesChanged();
    update();
}

void Sparkline::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    emit colorChanged();
    update();
}

void Sparkline::setFill(bool fill)
{
    if (fill == m_fill)
        return;
    m_fill = fill;
    emit fillChanged();
    update();
}

void Sparkline::setMaxValue(qreal maxValue)
{
    if (maxValue == m_maxValue)
        return;
    m_maxValue = maxValue;
    emit maxValueChanged();
    update();
}

void Sparkline::setLineWidth(qreal width)
{
    if (width == m_lineWidth)
        return;
    m_lineWidth = width;
    emit lineWidthChanged();
    update();
}

qreal Sparkline::peak() const
{
    if (m_values.isEmpty())
        return 0;
    qreal best = clean(m_values.first());
    for (qreal v : m_values)
        best = std::max(best, clean(v));
    return best;
}

void Sparkline::paint(QPainter *painter)
{
    // The plot box is inset by half the line width at top and bottom, so a
    // line on either edge is drawn whole instead of cut in half.
    const qreal inset = m_lineWidth / 2;
    const qreal w = width();
    const qreal h = std::max(height() - 2 * inset, 0.0);
    const QList<QPointF> pts = points(m_values, m_maxValue, w, h);
    if (pts.size() < 2 || w <= 0)
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(0, inset);

    if (m_fill) {
        QPainterPath area;
        area.moveTo(pts.first().x(), h);
        for (const QPointF &p : pts)
            area.lineTo(p);
        area.lineTo(pts.last().x(), h);
        area.closeSubpath();
        QLinearGradient gradient(0, 0, 0, h);
        QColor top = m_color;
        top.setAlphaF(0.35f);
        QColor bottom = m_color;
        bottom.setAlphaF(0.02f);
        gradient.setColorAt(0, top);
        gradient.setColorAt(1, bottom);
        painter->fillPath(area, gradient);
    }

    QPen pen(m_color, m_lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawPolyline(pts.constData(), int(pts.size()));
}

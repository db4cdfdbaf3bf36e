#pragma once
// The history line of the panel's charts: a polyline over the values, oldest
// on the left, with an optional area under it that fades from the line's
// colour to nearly transparent. Painted in C++, so a new value costs one
// repaint and no script.

#include <QColor>
#include <QList>
#include <QPointF>
#include <QQuickPaintedItem>

class Sparkline : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(QList<qreal> values READ values WRITE setValues NOTIFY valuesChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(bool fill READ fill WRITE setFill NOTIFY fillChanged)
    // The value drawn at the top edge; 0 or less (the default) scales the
    // chart to its own largest value.
    Q_PROPERTY(qreal maxValue READ maxValue WRITE setMaxValue NOTIFY maxValueChanged)
    Q_PROPERTY(qreal lineWidth READ lineWidth WRITE setLineWidth NOTIFY lineWidthChanged)
    // The largest value, 0 when there are none.
    Q_PROPERTY(qreal peak READ peak NOTIFY valuesChanged)

public:
    explicit Sparkline(QQuickItem *parent = nullptr);

    // The line's points in a w × h box (y grows downwards). One value gives
    // a flat line across; values at or below 0 lie on the bottom edge;
    // values above the top are drawn at the top.
    static QList<QPointF> points(const QList<qreal> &values, qreal maxValue, qreal w, qreal h);
    // The value at the top edge: maxValue when given, else the largest
    // value (1 when there are none), never below 0.0001.
    static qreal upperBound(const QList<qreal> &values, qreal maxValue);

    const QList<qreal> &values() const { return m_values; }
    void setValues(const QList<qreal> &values);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    bool fill() const { return m_fill; }
    void setFill(bool fill);
    qreal maxValue() const { return m_maxValue; }
    void setMaxValue(qreal maxValue);
    qreal lineWidth() const { return m_lineWidth; }
    void setLineWidth(qreal width);
    qreal peak() const;

    void paint(QPainter *painter) override;

signals:
    void valuesChanged();
    void colorChanged();
    void fillChanged();
    void maxValueChanged();
    void lineWidthChanged();

private:
    QList<qreal> m_values;
    QColor m_color = Qt::gray;
    bool m_fill = true;
    qreal m_maxValue = 0;
    qreal m_lineWidth = 1.5;
};

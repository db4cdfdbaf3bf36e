#pragma once
// One bar per value (a fraction 0..1), bottom-aligned, sharing the width
// equally. A bar never vanishes: even an idle core keeps a 2-point stub.

#include <QColor>
#include <QList>
#include <QQuickPaintedItem>
#include <QRectF>

class BarsView : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(QList<qreal> values READ values WRITE setValues NOTIFY valuesChanged)
    Q_PROPERTY(qreal spacing READ spacing WRITE setSpacing NOTIFY spacingChanged)
    // Each bar in the load colour of its value, or all in `color`.
    Q_PROPERTY(bool loadColors READ loadColors WRITE setLoadColors NOTIFY colorsChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorsChanged)

public:
    static constexpr qreal minBarHeight = 2;
    static constexpr qreal cornerRadius = 1.5;

    explicit BarsView(QQuickItem *parent = nullptr);

    // The bars in a w × h box. When the spacing leaves less than a point
    // per bar (hundreds of cores), the spacing shrinks first.
    static QList<QRectF> bars(const QList<qreal> &values, qreal w, qreal h, qreal spacing);

    const QList<qreal> &values() const { return m_values; }
    void setValues(const QList<qreal> &values);
    qreal spacing() const { return m_spacing; }
    void setSpacing(qreal spacing);
    bool loadColors() const { return m_loadColors; }
    void setLoadColors(bool on);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

    void paint(QPainter *painter) override;

signals:
    void valuesChanged();
    void spacingChanged();
    void colorsChanged();

private:
    QList<qreal> m_values;
    qreal m_spacing = 2;
    bool m_loadColors = true;
    QColor m_color = Qt::gray;
};

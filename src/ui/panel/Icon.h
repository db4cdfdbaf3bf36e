#pragma once
// A small monochrome icon from the application's own set
// (qrc:/sulkbox/icons/<name>.svg), drawn in one colour so that it follows
// the text colour of light and dark themes.

#include <QColor>
#include <QImage>
#include <QQuickPaintedItem>
#include <QString>

class Icon : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    // Whether an icon of that name exists.
    Q_PROPERTY(bool valid READ valid NOTIFY nameChanged)

public:
    explicit Icon(QQuickItem *parent = nullptr);

    // The icon drawn into a square of `pixels`, every drawn pixel in
    // `color` (its coverage kept as alpha); a null image for an unknown name.
    static QImage render(const QString &name, int pixels, const QColor &color);

    const QString &name() const { return m_name; }
    void setName(const QString &name);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    bool valid() const;

    void paint(QPainter *painter) override;

signals:
    void nameChanged();
    void colorChanged();

private:
    QString m_name;
    QColor m_color = Qt::black;
};

#include "ui/panel/Icon.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QQuickWindow>
#include <QSvgRenderer>

#include <cmath>
#include <memory>

namespace {

// One parsed renderer per icon, shared by every item that shows it.
QSvgRenderer *renderer(const QString &name)
{
    static QHash<QString, std::shared_ptr<QSvgRenderer>> cache;
    auto it = cache.find(name);
    if (it == cache.end()) {
        std::shared_ptr<QSvgRenderer> r;
        const QString path = QStringLiteral(":/sulkbox/icons/") + name + QStringLiteral(".svg");
        if (!name.isEmpty() && QFile::exists(path)) {
            r = std::make_shared<QSvgRenderer>(path);
            if (!r->isValid())
                r.reset();
        }
        it = cache.insert(name, r);
    }
    return it->get();
}

} // namespace

Icon::Icon(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    setImplicitSize(12, 12);
}

QImage Icon::render(const QString &name, int pixels, const QColor &color)
{
    QSvgRenderer *svg = renderer(name);
    if (!svg || pixels <= 0)
        return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    svg->render(&p, QRectF(0, 0, pixels, pixels));
    p.setCompositionMode(QPainter::CompositionMode_SourceIn);
    p.fillRect(image.rect(), color);
    p.end();
    return image;
}

void Icon::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    emit nameChanged();
    update();
}

void Icon::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    emit colorChanged();
    update();
}

bool Icon::valid() const
{
    return renderer(m_name) != nullptr;
}

void Icon::paint(QPainter *painter)
{
    const qreal side = std::min(width(), height());
    if (side <= 0)
        return;
    const qreal dpr = window() ? window()->effectiveDevicePixelRatio() : 1.0;
    const QImage image = render(m_name, int(std::ceil(side * dpr)), m_color);
    if (image.isNull())
        return;
    const QRectF target((width() - side) / 2, (height() - side) / 2, side, side);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(target, image);
}

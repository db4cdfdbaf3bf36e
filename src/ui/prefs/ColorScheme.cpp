#include "ui/prefs/ColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>

namespace {

const QString kPortalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kPortalInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kColorScheme = QStringLiteral("color-scheme");

// The portal wraps the value in one or two variants depending on its version.
QVariant unwrap(QVariant v)
{
    while (v.canConvert<QDBusVariant>() && v.typeId() == qMetaTypeId<QDBusVariant>())
        v = qvariant_cast<QDBusVariant>(v).variant();
    return v;
}

QColor mix(const QColor &a, const QColor &b, double t)
{
    return QColor::fromRgbF(float(a.redF() * (1 - t) + b.redF() * t), float(a.greenF() * (1 - t) + b.greenF() * t),
                            float(a.blueF() * (1 - t) + b.blueF() * t));
}

QPalette lightPalette()
{
    QPalette p;
    const QColor window(0xef, 0xef, 0xef), text(0x1d, 0x1d, 0x1f), base(0xff, 0xff, 0xff);
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, base);
    p.setColor(QPalette::AlternateBase, QColor(0xf5, 0xf5, 0xf5));
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::Button, QColor(0xf6, 0xf6, 0xf6));
    p.setColor(QPalette::ButtonText, text);
    p.setColor(QPalette::BrightText, Qt::white);
    p.setColor(QPalette::Light, Qt::white);
    p.setColor(QPalette::Midlight, QColor(0xe3, 0xe3, 0xe3));
    p.setColor(QPalette::Mid, QColor(0xb8, 0xb8, 0xb8));
    p.setColor(QPalette::Dark, QColor(0x9f, 0x9f, 0x9f));
    p.setColor(QPalette::Shadow, QColor(0x76, 0x76, 0x76));
    p.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, QColor(0x1a, 0x6f, 0xc4));
    p.setColor(QPalette::PlaceholderText, QColor(0x8e, 0x8e, 0x93));
    p.setColor(QPalette::ToolTipBase, QColor(0xff, 0xff, 0xdc));
    p.setColor(QPalette::ToolTipText, Qt::black);
    p.setColor(QPalette::Disabled, QPalette::Text, QColor(0xa0, 0xa0, 0xa0));
    p.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0xa0, 0xa0, 0xa0));
    p.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0xa0, 0xa0, 0xa0));
    return p;
}

QPalette darkPalette()
{
    QPalette p;
    const QColor window(0x24, 0x24, 0x26), text(0xea, 0xea, 0xec), base(0x30, 0x30, 0x33);
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, base);
    p.setColor(QPalette::AlternateBase, QColor(0x38, 0x38, 0x3b));
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::Button, QColor(0x3a, 0x3a, 0x3d));
    p.setColor(QPalette::ButtonText, text);
    p.setColor(QPalette::BrightText, Qt::white);
    p.setColor(QPalette::Light, QColor(0x50, 0x50, 0x54));
    p.setColor(QPalette::Midlight, QColor(0x44, 0x44, 0x47));
    p.setColor(QPalette::Mid, QColor(0x2a, 0x2a, 0x2c));
    p.setColor(QPalette::Dark, QColor(0x1c, 0x1c, 0x1e));
    p.setColor(QPalette::Shadow, QColor(0x0c, 0x0c, 0x0d));
    p.setColor(QPalette::Highlight, QColor(0x2f, 0x7f, 0xc9));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, QColor(0x5a, 0xa9, 0xf5));
    p.setColor(QPalette::PlaceholderText, QColor(0x8a, 0x8a, 0x8f));
    p.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3a, 0x3d));
    p.setColor(QPalette::ToolTipText, text);
    p.setColor(QPalette::Disabled, QPalette::Text, QColor(0x70, 0x70, 0x74));
    p.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x70, 0x70, 0x74));
    p.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x70, 0x70, 0x74));
    return p;
}

} // namespace

ColorScheme &ColorScheme::shared()
{
    static ColorScheme *instance = new ColorScheme; // lives for the whole process
    return *instance;
}

ColorScheme::ColorScheme()
{
    askPortal();
}

void ColorScheme::askPortal()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(kPortalService, kPortalPath, kPortalInterface, QStringLiteral("SettingChanged"), this,
                SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage call = QDBusMessage::createMethodCall(kPortalService, kPortalPath, kPortalInterface,
                                                       QStringLiteral("Read"));
    call << kAppearance << kColorScheme;
    // Asked once, without waiting: the windows start with the platform's
    // guess and change when the answer comes.
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, 2000), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *w) {
        w->deleteLater();
        const QDBusMessage reply = w->reply();
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
            return;
        bool ok = false;
        const uint value = unwrap(reply.arguments().first()).toUInt(&ok);
        if (ok)
            setPortalValue(value);
    });
}

void ColorScheme::onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group != kAppearance || key != kColorScheme)
        return;
    bool ok = false;
    const uint v = unwrap(value.variant()).toUInt(&ok);
    if (ok)
        setPortalValue(v);
}

void ColorScheme::setPortalValue(uint value)
{
    const bool before = dark();
    if (value == 1)
        m_portal = true;
    else if (value == 2)
        m_portal = false;
    else
        m_portal.reset();
    if (dark() != before)
        emit changed();
}

bool ColorScheme::paletteIsDark(const QPalette &p)
{
    return p.color(QPalette::Window).lightness() < 128;
}

bool ColorScheme::dark() const
{
    if (m_forced)
        return *m_forced;
    if (m_portal)
        return *m_portal;
    if (qEnvironmentVariable("GTK_THEME").endsWith(QStringLiteral(":dark")))
        return true;
    return paletteIsDark(QGuiApplication::palette());
}

void ColorScheme::force(std::optional<bool> dark)
{
    const bool before = this->dark();
    m_forced = dark;
    if (this->dark() != before)
        emit changed();
}

QPalette ColorScheme::palette(bool dark)
{
    const QPalette platform = QGuiApplication::palette();
    // The platform theme's palette wins when it is of the wanted kind.
    if (paletteIsDark(platform) == dark)
        return platform;
    return dark ? darkPalette() : lightPalette();
}

QVariantMap ColorScheme::colors() const
{
    const bool isDark = dark();
    const QPalette p = palette(isDark);
    QVariantMap m;
    const auto put = [&](const char *name, QPalette::ColorRole role) {
        m.insert(QString::fromLatin1(name), p.color(QPalette::Active, role));
    };
    put("window", QPalette::Window);
    put("windowText", QPalette::WindowText);
    put("base", QPalette::Base);
    put("alternateBase", QPalette::AlternateBase);
    put("text", QPalette::Text);
    put("button", QPalette::Button);
    put("buttonText", QPalette::ButtonText);
    put("brightText", QPalette::BrightText);
    put("light", QPalette::Light);
    put("midlight", QPalette::Midlight);
    put("mid", QPalette::Mid);
    put("dark", QPalette::Dark);
    put("shadow", QPalette::Shadow);
    put("highlight", QPalette::Highlight);
    put("highlightedText", QPalette::HighlightedText);
    put("link", QPalette::Link);
    put("placeholderText", QPalette::PlaceholderText);
    put("toolTipBase", QPalette::ToolTipBase);
    put("toolTipText", QPalette::ToolTipText);
    m.insert(QStringLiteral("disabledText"), p.color(QPalette::Disabled, QPalette::Text));
    m.insert(QStringLiteral("disabledButtonText"), p.color(QPalette::Disabled, QPalette::ButtonText));
    m.insert(QStringLiteral("disabledWindowText"), p.color(QPalette::Disabled, QPalette::WindowText));
    const QColor window = p.color(QPalette::Window), text = p.color(QPalette::WindowText);
    m.insert(QStringLiteral("card"), isDark ? mix(window, Qt::white, 0.07) : p.color(QPalette::Base));
    m.insert(QStringLiteral("separator"), mix(window, text, isDark ? 0.16 : 0.12));
    m.insert(QStringLiteral("secondaryText"), mix(window, text, 0.68));
    m.insert(QStringLiteral("tertiaryText"), mix(window, text, 0.5));
    return m;
}

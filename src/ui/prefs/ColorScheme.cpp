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

// The colours of one of sulkbox's palettes; roles that share a colour take it
// from the same field.
struct Tones {
    QColor window, text, base, alternateBase, button, light, midlight, mid, dark, shadow, highlight, link,
        placeholderText, toolTipBase, toolTipText, disabledText;
};

const Tones lightTones = {0xefefefu, 0x1d1d1fu, 0xffffffu, 0xf5f5f5u, 0xf6f6f6u, 0xffffffu, 0xe3e3e3u, 0xb8b8b8u,
                          0x9f9f9fu, 0x767676u, 0x308cc6u, 0x1a6fc4u, 0x8e8e93u, 0xffffdcu, 0x000000u, 0xa0a0a0u};
const Tones darkTones = {0x242426u, 0xeaeaecu, 0x303033u, 0x38383bu, 0x3a3a3du, 0x505054u, 0x444447u, 0x2a2a2cu,
                         0x1c1c1eu, 0x0c0c0du, 0x2f7fc9u, 0x5aa9f5u, 0x8a8a8fu, 0x3a3a3du, 0xeaeaecu, 0x707074u};

QPalette paletteOf(const Tones &t)
{
    QPalette p;
    p.setColor(QPalette::Window, t.window);
    p.setColor(QPalette::WindowText, t.text);
    p.setColor(QPalette::Base, t.base);
    p.setColor(QPalette::AlternateBase, t.alternateBase);
    p.setColor(QPalette::Text, t.text);
    p.setColor(QPalette::Button, t.button);
    p.setColor(QPalette::ButtonText, t.text);
    p.setColor(QPalette::BrightText, Qt::white);
    p.setColor(QPalette::Light, t.light);
    p.setColor(QPalette::Midlight, t.midlight);
    p.setColor(QPalette::Mid, t.mid);
    p.setColor(QPalette::Dark, t.dark);
    p.setColor(QPalette::Shadow, t.shadow);
    p.setColor(QPalette::Highlight, t.highlight);
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, t.link);
    p.setColor(QPalette::PlaceholderText, t.placeholderText);
    p.setColor(QPalette::ToolTipBase, t.toolTipBase);
    p.setColor(QPalette::ToolTipText, t.toolTipText);
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, t.disabledText);
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
    return ownPalette(dark);
}

QPalette ColorScheme::ownPalette(bool dark)
{
    return paletteOf(dark ? darkTones : lightTones);
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

#pragma once
// Light or dark, as the desktop asks, and the colours of the windows of the
// preferences work (the preferences and the update result) in each.
//
// The desktop's wish comes from the freedesktop settings portal
// (org.freedesktop.appearance color-scheme), followed live; without a
// portal, from the platform theme's palette or a GTK_THEME ending in ":dark".
// QML reads `scheme.colors.window`, `scheme.colors.secondaryText`…

#include <QColor>
#include <QObject>
#include <QPalette>
#include <QVariantMap>

#include <optional>

class QDBusVariant;

class ColorScheme : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool dark READ dark NOTIFY changed)
    Q_PROPERTY(QVariantMap colors READ colors NOTIFY changed)

public:
    static ColorScheme &shared();

    bool dark() const;
    // Fixes light or dark regardless of the desktop (the gallery); nullopt
    // follows the desktop again.
    void force(std::optional<bool> dark);

    // Every palette role by its QML name ("window", "buttonText"…), the
    // disabled text colours ("disabledText", "disabledButtonText"), and the
    // grouped form's own: "card", "separator", "secondaryText", "tertiaryText".
    QVariantMap colors() const;

    // The Fusion palette for light or dark: the platform's own palette when
    // it is of that kind, else sulkbox's.
    static QPalette palette(bool dark);

    // The portal's color-scheme value: 1 asks for dark, 2 for light, 0 has no wish.
    void setPortalValue(uint value);

signals:
    void changed();

private slots:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    ColorScheme();
    void askPortal();
    static bool paletteIsDark(const QPalette &p);

    std::optional<bool> m_forced;
    std::optional<bool> m_portal;
};

#pragma once
// The preferences window: every setting, at once, with no Apply. Made from
// qrc:/sulkbox/qml/Preferences.qml on the shared QML engine the first time it
// opens and kept afterwards; opening it again brings the open one forward.
// Besides the shared context, its QML gets `prefs` (this object) and
// `scheme` (light or dark, see ColorScheme.h).

#include <QObject>
#include <QPointer>
#include <QStringList>

class QQmlContext;
class QQuickWindow;
class SystemMonitor;
class UpdateWindow;

class PreferencesWindow : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString versionText READ versionText CONSTANT)
    Q_PROPERTY(QString iconSource READ iconSource CONSTANT)
    // The language picker's names, in AppLanguage order, in the current language.
    Q_PROPERTY(QStringList languageNames READ languageNames NOTIFY languageNamesChanged)
    Q_PROPERTY(bool updatesConfigured READ updatesConfigured NOTIFY updatesConfiguredChanged)

public:
    static constexpr int savageReactionMs = 4000;

    PreferencesWindow(SystemMonitor &monitor, UpdateWindow &updates, QObject *parent = nullptr);
    ~PreferencesWindow() override;

    // Shows the window (made on first call) or raises the one already open.
    // Each time it appears, the launch-at-login switch is set to whether the
    // autostart entry is really there.
    void open();
    QQuickWindow *window() const;

    QString versionText() const;
    QString iconSource() const;
    QStringList languageNames() const;
    bool updatesConfigured() const;

    // The launch-at-login switch changed: store it and write or delete the entry.
    Q_INVOKABLE void setLaunchAtLogin(bool on);
    // The Savage Mode switch changed: store it and show 😈 or 😇 for 4 s.
    Q_INVOKABLE void setSavageMode(bool on);
    Q_INVOKABLE void setLanguage(int index);
    Q_INVOKABLE void checkForUpdates();

    // Where the application icon is for QML, or empty when there is none
    // (or no SVG reader to draw it).
    static QString applicationIconSource();

signals:
    void languageNamesChanged();
    void updatesConfiguredChanged();

private:
    void syncLoginItem();

    SystemMonitor &m_monitor;
    UpdateWindow &m_updates;
    QPointer<QQmlContext> m_context;
    QPointer<QQuickWindow> m_window;
};

#pragma once
// One desktop face per session: the running one owns io.github.sulkbox on
// the session bus and serves io.github.sulkbox.Desktop.OpenPanel() at
// /io/github/sulkbox. A second start asks it to open its panel and exits.

#include <QDBusConnection>
#include <QObject>

class SingleInstance : public QObject {
    Q_OBJECT
public:
    static inline const QString serviceName = QStringLiteral("io.github.sulkbox");
    static inline const QString objectPath = QStringLiteral("/io/github/sulkbox");
    static inline const QString interfaceName = QStringLiteral("io.github.sulkbox.Desktop");

    enum class Claim { owner, alreadyRunning, failed };

    explicit SingleInstance(QDBusConnection bus, QObject *parent = nullptr);
    ~SingleInstance() override;

    // Serves OpenPanel and takes the name; `alreadyRunning` when another
    // process holds it.
    Claim claim();

    // Asks the process that holds the name to open its panel.
    bool askToOpenPanel(QString *error = nullptr);

signals:
    void openPanelRequested();

private:
    QDBusConnection m_bus;
    bool m_exported = false;
    bool m_owner = false;
};

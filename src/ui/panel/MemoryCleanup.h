#pragma once
// The memory section's "Free up" action: one clean-up at a time, the
// freshening reaction while it runs, then the "freed" note and the lighter
// reaction for 3.5 s. The run is tied to the model, not to the panel: if the
// panel closes meanwhile, the model is still refreshed and the reaction
// still set and cleared.

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

#include "model/SystemMonitor.h"

class MemoryCleanup : public QObject {
    Q_OBJECT
    Q_PROPERTY(SystemMonitor *monitor READ monitor WRITE setMonitor NOTIFY monitorChanged)
    Q_PROPERTY(bool cleaning READ cleaning NOTIFY cleaningChanged)
    // "freed 1.2 GB" after a run, for 3.5 s; empty otherwise.
    Q_PROPERTY(QString freedText READ freedText NOTIFY freedTextChanged)

public:
    static constexpr int noteMs = 3500;

    // Starts the clean-up; `done` runs once on the main thread with the bytes
    // freed, unless `context` is gone by then.
    using Runner = std::function<void(QObject *context, std::function<void(double freed)> done)>;

    explicit MemoryCleanup(QObject *parent = nullptr);

    // Replaces the real memory cleaner (tests); an empty runner restores it.
    static void setRunner(Runner runner);

    SystemMonitor *monitor() const { return m_monitor; }
    void setMonitor(SystemMonitor *monitor);
    bool cleaning() const { return m_cleaning; }
    const QString &freedText() const { return m_freedText; }

    Q_INVOKABLE void clean();

signals:
    void monitorChanged();
    void cleaningChanged();
    void freedTextChanged();

private:
    void finish(double freed);
    void setCleaning(bool cleaning);
    void setFreedText(const QString &text);

    QPointer<SystemMonitor> m_monitor;
    bool m_cleaning = false;
    QString m_freedText;
    int m_run = 0; // the note belongs to the newest run only
};

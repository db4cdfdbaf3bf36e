#pragma once
// The clock and the delayed main-thread actions of the model and the
// personality. Production code uses the system one (wall clock and
// QTimer::singleShot); tests use ManualScheduler and move time by hand.

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>

class Scheduler {
public:
    virtual ~Scheduler() = default;

    virtual QDateTime now() const = 0;

    // Runs `action` on the main thread after `ms` milliseconds, unless
    // `context` is destroyed first (the context is the weak reference).
    virtual void after(int ms, QObject *context, std::function<void()> action) = 0;

    // The shared wall-clock scheduler.
    static Scheduler &system();
};

class ManualScheduler : public Scheduler {
public:
    explicit ManualScheduler(QDateTime start = QDateTime(QDate(2026, 3, 10), QTime(14, 0)));

    QDateTime now() const override { return m_now; }
    void after(int ms, QObject *context, std::function<void()> action) override;

    // Moves the clock forward, running due actions in time order.
    void advance(qint64 ms);
    void setNow(const QDateTime &now) { m_now = now; }
    int pending() const { return int(m_queue.size()); }

private:
    struct Item {
        QDateTime due;
        quint64 seq;
        QPointer<QObject> context;
        bool hadContext;
        std::function<void()> action;
    };
    QDateTime m_now;
    quint64 m_seq = 0;
    QList<Item> m_queue;
};

#pragma once
// Fixed-capacity history of doubles. Once full it overwrites its oldest
// entry; `ordered()` hands the contents out oldest first.

#include <QList>
#include <QMetaType>

class RingBuffer {
    Q_GADGET
    Q_PROPERTY(QList<double> ordered READ ordered)
    Q_PROPERTY(int capacity READ capacity)
    Q_PROPERTY(bool filled READ filled)
public:
    explicit RingBuffer(int capacity = 60);

    void append(double value);
    QList<double> ordered() const;

    // The newest up to `n` values, oldest first.
    QList<double> newest(int n) const;

    const QList<double> &values() const { return m_values; }
    int capacity() const { return m_capacity; }
    int head() const { return m_head; }
    bool filled() const { return m_filled; }

    bool operator==(const RingBuffer &) const = default;

private:
    QList<double> m_values;
    int m_capacity;
    int m_head = 0;
    bool m_filled = false;
};

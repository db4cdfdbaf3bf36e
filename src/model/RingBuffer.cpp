#include "model/RingBuffer.h"

#include <algorithm>

RingBuffer::RingBuffer(int capacity)
    : m_capacity(std::max(capacity, 1))
{
    m_values.fill(0.0, m_capacity);
}

void RingBuffer::append(double value)
{
    m_values[m_head] = value;
    m_head = (m_head + 1) % m_capacity;
    if (m_head == 0)
        m_filled = true;
}

QList<double> RingBuffer::ordered() const
{
    if (!m_filled)
        return m_values.mid(0, m_head);
    QList<double> out;
    out.reserve(m_capacity);
    out.append(m_values.mid(m_head));
    out.append(m_values.mid(0, m_head));
    return out;
}

QList<double> RingBuffer::newest(int n) const
{
    const int count = m_filled ? m_capacity : m_head;
    n = std::clamp(n, 0, count);
    QList<double> out;
    out.reserve(n);
    for (int i = n; i >= 1; --i)
        out.append(m_values[(m_head - i + m_capacity) % m_capacity]);
    return out;
}

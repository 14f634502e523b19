#pragma once

#include <QtGlobal>

#include <atomic>

namespace velm
{

// Counts the changes of the pasteboard, for both threads. A write of our own is counted when it is made;
// the server's notice of it, which comes later, must not count again.
class ChangeCounter
{
public:
    quint64 count() const { return m_count; }

    // Gives the number of this change.
    quint64 step() { return ++m_count; }

    void expectNotice() { ++m_expected; }
    void expectNone() { m_expected = 0; }

    // Whether the notice at hand is one that was expected. On the reading thread only.
    bool takeExpected()
    {
        int expected = m_expected;
        while (expected > 0 && !m_expected.compare_exchange_weak(expected, expected - 1)) {
        }
        return expected > 0;
    }

private:
    std::atomic<quint64> m_count = 0;
    std::atomic<int> m_expected = 0;
};

}

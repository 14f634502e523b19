#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <deque>
#include <optional>

namespace velm
{

// A pasteboard in memory. Reads are told at once, or when the test lets them through.
class FakePasteboard final : public Pasteboard
{
public:
    void watch(NextType next) override { m_next = std::move(next); }
    quint64 changeCount() const override { return m_changes; }
    void setSizeLimit(Bytes limit) override { sizeLimit = limit; }
    void write(const PasteboardOffer &offer) override
    {
        ++m_changes;
        written = offer;
        m_content.clear();
        for (const auto &[type, makeBytes] : offer)
            m_content.append({type, makeBytes()});
    }

    // Another program copies.
    void copy(const QList<PasteboardData> &content) { change(content, PasteboardOutcome::Read); }
    void copyText(const QString &text)
    {
        copy({{QStringLiteral("text/plain;charset=utf-8"), text.toUtf8()}});
    }

    // Another program copies and does not hand it over.
    void copyAndHang(const QStringList &types)
    {
        QList<PasteboardData> content;
        for (const QString &type : types)
            content.append({type, {}});
        change(content, PasteboardOutcome::Failed);
    }

    // The owner goes and leaves nothing.
    void abandon()
    {
        m_content.clear();
        written.reset();
        Q_EMIT abandoned(++m_changes);
    }

    // While held, reads wait as those of a slow owner do.
    void holdReads() { m_isHolding = true; }
    void releaseReads()
    {
        m_isHolding = false;
        while (!m_held.empty()) {
            const PasteboardContent content = std::move(m_held.front());
            m_held.pop_front();
            Q_EMIT read(content);
        }
    }

    // What another program would get by pasting; null when the type is not offered.
    QByteArray bytes(const QString &type) const
    {
        for (const PasteboardData &data : m_content) {
            if (data.type == type)
                return data.bytes;
        }
        return {};
    }

    bool isOwn() const { return written.has_value(); }

    std::optional<PasteboardOffer> written; // what write() has put there; absent once another has copied
    Bytes sizeLimit = mebibytes(64);

private:
    void change(const QList<PasteboardData> &content, PasteboardOutcome outcome)
    {
        m_content = content;
        written.reset();
        ++m_changes;
        if (!m_next)
            return;
        Q_EMIT changed(m_changes);
        PasteboardContent told = take(content, outcome);
        if (told.data.isEmpty() && told.outcome == PasteboardOutcome::Read)
            return;
        m_held.push_back(std::move(told));
        if (!m_isHolding)
            releaseReads();
    }

    PasteboardContent take(const QList<PasteboardData> &content, PasteboardOutcome outcome) const
    {
        PasteboardContent told{
            .change = m_changes, .types = {}, .data = {}, .outcome = PasteboardOutcome::Read};
        for (const PasteboardData &data : content)
            told.types.append(data.type);
        qint64 size = 0;
        for (QString type = m_next(told.types, told.data); !type.isEmpty();
             type = m_next(told.types, told.data)) {
            told.outcome = outcome;
            size += bytes(type).size();
            if (outcome == PasteboardOutcome::Read && size > sizeLimit.count)
                told.outcome = PasteboardOutcome::TooLarge;
            if (told.outcome != PasteboardOutcome::Read) {
                told.data.clear();
                return told;
            }
            told.data.append({type, bytes(type)});
        }
        return told;
    }

    NextType m_next;
    QList<PasteboardData> m_content;
    std::deque<PasteboardContent> m_held;
    quint64 m_changes = 0;
    bool m_isHolding = false;
};

}

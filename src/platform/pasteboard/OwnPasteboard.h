#pragma once

#include "platform/pasteboard/Pasteboard.h"

namespace velm
{

// A pasteboard that no other program shares: it keeps what is written, and nothing else ever changes it.
class OwnPasteboard final : public Pasteboard
{
public:
    void watch(NextType) override {}
    quint64 changeCount() const override { return m_changes; }
    void setSizeLimit(Bytes) override {}
    void write(const PasteboardOffer &offer) override
    {
        m_offer = offer;
        ++m_changes;
    }

private:
    PasteboardOffer m_offer;
    quint64 m_changes = 0;
};

}

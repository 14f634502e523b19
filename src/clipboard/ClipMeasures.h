#pragma once

#include "clipboard/ClipItem.h"

#include <QHash>

namespace velm
{

// Remembers how much text the big clips have, so that a list never counts them again.
class ClipMeasures
{
public:
    TextMeasure of(const ClipItem &item)
    {
        if (!isWorthKeeping(item))
            return measure(item.text);
        const auto known = m_known.constFind(item.fingerprint);
        return known != m_known.constEnd() ? *known : *m_known.insert(item.fingerprint, measure(item.text));
    }

    void remember(const ClipItem &item, const TextMeasure &textMeasure)
    {
        if (isWorthKeeping(item))
            m_known.insert(item.fingerprint, textMeasure);
    }

    void forget(const ClipItem &item) { m_known.remove(item.fingerprint); }

private:
    static bool isWorthKeeping(const ClipItem &item)
    {
        constexpr qsizetype quicklyCounted = 2000; // code units
        return item.isTextual() && item.kind != ClipKind::Link && item.text.size() > quicklyCounted;
    }

    QHash<QString, TextMeasure> m_known;
};

}

#include "platform/pasteboard/x11/LazyMimeData.h"

namespace velm
{

// The toolkit makes all the X names and encodings of a text, but only from its plain name.
LazyMimeData::LazyMimeData(PasteboardOffer offer) : m_offer(std::move(offer))
{
    const QString text = QStringLiteral("text/plain");
    for (const QString &name : {QStringLiteral("text/plain;charset=utf-8"), QStringLiteral("UTF8_STRING")}) {
        const auto named = m_offer.find(name);
        if (named != m_offer.end())
            m_offer.try_emplace(text, named->second);
    }
}

QStringList LazyMimeData::formats() const
{
    QStringList formats;
    for (const auto &entry : m_offer)
        formats.append(entry.first);
    return formats;
}

QVariant LazyMimeData::retrieveData(const QString &type, QMetaType) const
{
    const auto offered = m_offer.find(type);
    return offered == m_offer.end() ? QVariant() : QVariant(offered->second());
}

}

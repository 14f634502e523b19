#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <QMimeData>

namespace velm
{

// An offer in the toolkit's form: its bytes are made when another program asks for them.
class LazyMimeData final : public QMimeData
{
    Q_OBJECT

public:
    explicit LazyMimeData(PasteboardOffer offer);

    QStringList formats() const override;
    bool hasFormat(const QString &type) const override { return m_offer.contains(type); }

protected:
    QVariant retrieveData(const QString &type, QMetaType preferred) const override;

private:
    PasteboardOffer m_offer;
};

}

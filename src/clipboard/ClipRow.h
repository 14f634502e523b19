#pragma once

#include "clipboard/ClipItem.h"

#include <QColor>
#include <QUrl>

namespace velm
{

// A clip as a row of the list shows it.
struct ClipRow {
    Q_GADGET
    QML_VALUE_TYPE(clipRow)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(velm::ClipKinds::ClipKind kind MEMBER kind)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString preview MEMBER preview)
    Q_PROPERTY(QString subtitle MEMBER subtitle)
    Q_PROPERTY(QString age MEMBER age)
    Q_PROPERTY(bool pinned MEMBER pinned)
    Q_PROPERTY(QColor swatch MEMBER swatch)
    Q_PROPERTY(QUrl thumbnail MEMBER thumbnail)

public:
    QString id = {};
    ClipKind kind = ClipKind::Text;
    QString icon = {};
    QString preview = {}; // one line, and no longer than a row can show
    QString subtitle = {};
    QString age = {};
    bool pinned = false;
    QColor swatch = Qt::transparent; // of a colour
    QUrl thumbnail = {};             // of a picture; "/RADIUS/WIDTH" in device pixels is to be appended

    bool operator==(const ClipRow &) const = default;
};

ClipRow makeRow(const ClipItem &item, const TextMeasure &textMeasure, const QDateTime &now);

}

#pragma once

#include "island/Seconds.h"
#include "island/Tint.h"

#include <QJsonObject>
#include <QObject>

#include <optional>

namespace velm
{

// Something that has just happened or goes on, shown for a while in the closed island. A feature presents
// one; the latest wins.
struct LiveActivity {
    Q_GADGET
    QML_VALUE_TYPE(liveActivity)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(velm::Tints::Tint tint MEMBER tint)
    Q_PROPERTY(QString leading MEMBER leading)
    Q_PROPERTY(QString trailing READ trailingText)  // empty for none
    Q_PROPERTY(double progress READ progressOrNone) // -1 for none
    Q_PROPERTY(bool sticky MEMBER sticky)
    Q_PROPERTY(double duration READ durationInSeconds)

public:
    QString trailingText() const { return trailing.value_or(QString()); }
    double progressOrNone() const { return progress.value_or(-1); }
    double durationInSeconds() const { return duration.count(); }

    QString id = {};   // for dismissing it
    QString icon = {}; // a symbol's name
    Tint tint = Tint::Text;
    QString leading = {}; // the main text
    std::optional<QString> trailing = {};
    std::optional<double> progress = {}; // 0…1: a ring
    bool sticky = false;                 // stays until dismissed
    Seconds duration = Seconds::zero();  // of one that is not sticky

    bool operator==(const LiveActivity &) const = default;
};

// The fields above as keys, absent ones left out.
QJsonObject toJson(const LiveActivity &activity);

}

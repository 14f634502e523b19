#pragma once

#include <QDateTime>
#include <QObject>
#include <QStringList>

#include <optional>

namespace velm
{

// A record with a key of each kind, for what reads and writes records.
struct Stamp {
    Q_GADGET
    Q_PROPERTY(QString motif MEMBER motif)
    Q_PROPERTY(int value MEMBER value)

public:
    QString motif;
    int value = 0;

    bool operator==(const Stamp &) const = default;
};

struct Parcel {
    Q_GADGET
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(bool isSent MEMBER isSent)
    Q_PROPERTY(int count MEMBER count)
    Q_PROPERTY(qint64 grams MEMBER grams)
    Q_PROPERTY(double price MEMBER price)
    Q_PROPERTY(QDateTime posted MEMBER posted)
    Q_PROPERTY(QStringList places MEMBER places)
    Q_PROPERTY(Kind kind MEMBER kind)
    Q_PROPERTY(velm::Stamp front MEMBER front)
    Q_PROPERTY(QList<velm::Stamp> stamps MEMBER stamps)
    Q_PROPERTY(std::optional<QString> note MEMBER note)
    Q_PROPERTY(std::optional<QDateTime> seen MEMBER seen)
    Q_PROPERTY(std::optional<double> width MEMBER width)
    Q_PROPERTY(std::optional<qint64> number MEMBER number)
    Q_PROPERTY(int length READ length STORED false)

public:
    enum class Kind { Letter, SmallBox };
    Q_ENUM(Kind)

    QString text;
    bool isSent = false;
    int count = 0;
    qint64 grams = 0;
    double price = 0;
    QDateTime posted = QDateTime({2026, 1, 31}, {17, 4, 5}, Qt::UTC);
    QStringList places;
    Kind kind = Kind::Letter;
    Stamp front;
    QList<Stamp> stamps;
    std::optional<QString> note;
    std::optional<QDateTime> seen;
    std::optional<double> width;
    std::optional<qint64> number;

    int length() const { return static_cast<int>(text.size()); }

    bool operator==(const Parcel &) const = default;
};

}

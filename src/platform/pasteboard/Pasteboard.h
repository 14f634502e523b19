#pragma once

#include "platform/Bytes.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <functional>
#include <map>

namespace velm
{

// One type's bytes as they were read.
struct PasteboardData {
    QString type;     // a MIME type, as offered
    QByteArray bytes; // null when the owner offered the type and then refused it
};

// How reading one content of the pasteboard ended.
enum class PasteboardOutcome {
    Read,     // all that was asked for is there
    TooLarge, // given up at the size limit; nothing is kept
    Failed,   // the owner hung past the deadline, went away, or sent less than it said
};

// The content of one change of the pasteboard.
struct PasteboardContent {
    quint64 change = 0;
    QStringList types; // offered, without the display system's own bookkeeping
    QList<PasteboardData> data;
    PasteboardOutcome outcome = PasteboardOutcome::Read;
};

// What to put on the pasteboard: each type with a function that makes its bytes when a program asks for
// them, on the main thread. The functions hold what they need by value: they may be asked as long as the
// program runs.
using PasteboardOffer = std::map<QString, std::function<QByteArray()>>;

// The general pasteboard of the desktop. Every change is noticed by the display server's own notice and
// read at once, off the main thread, in the order of the changes: a burst of copies is not missed while the
// main thread is busy, and an owner that hangs holds up nobody but itself.
class Pasteboard : public QObject
{
    Q_OBJECT

public:
    // Asked on the reading thread before each read: of the offered types and what was read so far, which
    // type comes next; an empty string when it is enough. Must be free of shared state.
    using NextType = std::function<QString(const QStringList &types, const QList<PasteboardData> &soFar)>;

    // Begins to watch; what is on the pasteboard now is not reported.
    virtual void watch(NextType next) = 0;

    // Rises by one or more with every change, own ones included; 0 before the first.
    virtual quint64 changeCount() const = 0;

    // A larger content is given up as TooLarge. 64 MiB at first.
    virtual void setSizeLimit(Bytes limit) = 0;

    // Takes the pasteboard with these types; an empty offer clears it. The change counter has moved when
    // this returns, and that change is reported neither by changed() nor by read().
    virtual void write(const PasteboardOffer &offer) = 0;

Q_SIGNALS:
    // Another program has put something on the pasteboard. Its read() follows, in the same order, unless
    // nothing was to be read.
    void changed(quint64 change);
    void read(const velm::PasteboardContent &content);

    // The owner has gone and its content with it: nothing is on the pasteboard.
    void abandoned(quint64 change);
};

}

Q_DECLARE_METATYPE(velm::PasteboardContent)

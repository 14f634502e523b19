#pragma once

#include "clipboard/ClipKind.h"
#include "clipboard/ColorLiteral.h"

#include <QDateTime>
#include <QStringList>

#include <optional>

namespace velm
{

// How much text a clip has, as its second line tells. Counted once where it is much.
struct TextMeasure {
    qsizetype characters = 0;
    qsizetype words = 0;

    bool operator==(const TextMeasure &) const = default;
};

TextMeasure measure(QStringView text);

// One thing that was copied.
struct ClipItem {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(velm::ClipKinds::ClipKind kind MEMBER kind)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(std::optional<QString> imageFile MEMBER imageFile)
    Q_PROPERTY(QStringList filePaths MEMBER filePaths)
    Q_PROPERTY(QString sourceApp MEMBER sourceApp)
    Q_PROPERTY(QString sourceBundleID MEMBER sourceBundleID)
    Q_PROPERTY(QDateTime date MEMBER date)
    Q_PROPERTY(bool pinned MEMBER pinned)
    Q_PROPERTY(std::optional<QDateTime> pinnedAt MEMBER pinnedAt)
    Q_PROPERTY(int useCount MEMBER useCount)
    Q_PROPERTY(QString fingerprint MEMBER fingerprint)

public:
    static ClipKind classify(QStringView text);
    static std::optional<ColorLiteral> parseColor(QStringView text) { return parseColorLiteral(text); }

    // The one-line title in a list, and its beginning for where no more fits: no more of a big text is looked
    // at than is shown.
    QString preview() const;
    QString preview(qsizetype characters) const;

    // The grey second line. The measure of `text` where it is known already.
    QString subtitle() const { return subtitle(measure(text)); }
    QString subtitle(const TextMeasure &textMeasure) const;

    bool isTextual() const { return kind != ClipKind::Image && kind != ClipKind::Files; }

    QString id = {}; // a UUID in upper case
    ClipKind kind = ClipKind::Text;
    QString text = {};                     // untrimmed; "640×480" of a picture, the paths of files by line
    std::optional<QString> imageFile = {}; // of a picture: its PNG's name in the folder of clips
    QStringList filePaths = {};
    QString sourceApp = {};      // "Unknown" when no program was in front
    QString sourceBundleID = {}; // empty likewise
    QDateTime date = {};         // of the last copy, in UTC
    bool pinned = false;
    std::optional<QDateTime> pinnedAt = {};
    int useCount = 0;
    QString fingerprint = {}; // the same for the same content

    bool operator==(const ClipItem &) const = default;
};

// A new record's id, and the first part of its picture's name.
QString freshId();

}

Q_DECLARE_TYPEINFO(velm::ClipItem, Q_RELOCATABLE_TYPE);

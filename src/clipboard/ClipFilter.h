#pragma once

#include "clipboard/ClipItem.h"

namespace velm
{

namespace ClipFilters
{

Q_NAMESPACE
QML_NAMED_ELEMENT(ClipFilter)

// Which clips the list shows. Text means all that is textual but links.
enum class ClipFilter { All, Pinned, Text, Link, Image, Files };
Q_ENUM_NS(ClipFilter)

}

using ClipFilters::ClipFilter;

bool passes(const ClipItem &item, ClipFilter filter);

// How many clips pass each filter.
struct ClipCounts {
    Q_GADGET
    QML_VALUE_TYPE(clipCounts)
    Q_PROPERTY(int all MEMBER all)
    Q_PROPERTY(int pinned MEMBER pinned)
    Q_PROPERTY(int text MEMBER text)
    Q_PROPERTY(int link MEMBER link)
    Q_PROPERTY(int image MEMBER image)
    Q_PROPERTY(int files MEMBER files)

public:
    int all = 0;
    int pinned = 0;
    int text = 0;
    int link = 0;
    int image = 0;
    int files = 0;

    bool operator==(const ClipCounts &) const = default;
};

ClipCounts countClips(const QList<ClipItem> &items);

// What the list shows: those that pass and whose text or program has the search in it (spaces and tabs around
// it do not count, nor does upper or lower case), pinned ones first, then the newest first.
QList<ClipItem> visibleItems(const QList<ClipItem> &items, ClipFilter filter, const QString &search);

}

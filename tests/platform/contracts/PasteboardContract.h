#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <QTest>

#include <memory>

namespace velm
{

// A desktop in which other programs copy, as the contract's tests need it.
class PasteboardWorld
{
public:
    virtual ~PasteboardWorld() = default;

    virtual Pasteboard &pasteboard() = 0;
    virtual void copy(const QList<PasteboardData> &content) = 0;
    virtual void copyAndHang(const QStringList &types) = 0;
    virtual void ownerLeaves() = 0;

    // What another program gets by pasting; null when the type is not offered.
    virtual QByteArray paste(const QString &type) = 0;

    virtual bool waitFor(const std::function<bool()> &condition) = 0;
};

// What holds of every pasteboard.
class PasteboardContract : public QObject
{
    Q_OBJECT

protected:
    virtual std::unique_ptr<PasteboardWorld> makeWorld() = 0;

private Q_SLOTS:
    void what_was_there_before_is_not_reported();
    void a_copy_is_told_and_then_read();
    void only_the_wanted_types_are_read();
    void nothing_wanted_is_nothing_read();
    void copies_are_read_in_their_order();
    void an_own_write_counts_and_is_not_reported();
    void an_own_write_can_be_pasted_elsewhere();
    void writing_nothing_clears();
    void an_owner_that_leaves_is_told();
    void a_content_over_the_limit_is_given_up_whole();
    void an_owner_that_hangs_fails_and_the_next_copy_is_read();
};

}

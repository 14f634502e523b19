#pragma once

#include "platform/Platform.h"
#include "platform/contracts/PasteboardContract.h"
#include "platform/rig/OtherProgram.h"
#include "platform/rig/SelectionOwner.h"
#include "platform/runloop/QtRunLoop.h"

namespace velm
{

// The pasteboard of the private display, and another program that copies.
class X11PasteboardWorld final : public PasteboardWorld
{
public:
    X11PasteboardWorld() : m_platform(makePlatform(m_loop)) {}

    Pasteboard &pasteboard() override { return *m_platform.pasteboard; }
    void copy(const QList<PasteboardData> &content) override { m_owner.copy(content); }
    void copyAndHang(const QStringList &types) override
    {
        QList<PasteboardData> content;
        for (const QString &type : types)
            content.append({type, "never"});
        m_owner.copy(content, {.answers = false});
    }
    void ownerLeaves() override { m_owner.leave(); }
    QByteArray paste(const QString &type) override
    {
        const QByteArray text =
            outputOf(QStringLiteral("xclip"), {QStringLiteral("-selection"), QStringLiteral("clipboard"),
                                               QStringLiteral("-o"), QStringLiteral("-t"), type});
        return text.isEmpty() ? QByteArray() : text;
    }
    bool waitFor(const std::function<bool()> &condition) override
    {
        return QTest::qWaitFor(condition, 10000);
    }

    SelectionOwner &owner() { return m_owner; }

private:
    QtRunLoop m_loop;
    Platform m_platform;
    SelectionOwner m_owner;
};

}

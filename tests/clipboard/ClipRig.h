#pragma once

#include "app/Store.h"
#include "app/UndoOffer.h"
#include "clipboard/ClipMaking.h"
#include "clipboard/ClipboardManager.h"
#include "island/IslandRig.h"
#include "platform/fakes/FakeFrontProgram.h"
#include "platform/fakes/FakePasteKeys.h"
#include "platform/fakes/FakePasteboard.h"

#include <memory>

namespace velm
{

// A data folder of its own for the store that comes after it.
struct PrivateDataFolder {
    QTemporaryDir data;

    PrivateDataFolder() { qputenv("XDG_DATA_HOME", data.path().toLocal8Bit()); }
};

// The clipboard at work, between a pasteboard, a front program and an island that the test drives.
struct ClipRig : IslandRig, PrivateDataFolder {
    Store store{loop, QStringLiteral("Velm")};
    UndoOffer undo{loop};
    FakePasteboard pasteboard;
    FakeFrontProgram front;
    FakePasteKeys keys;
    std::unique_ptr<ClipboardManager> manager;

    ClipRig() { start(); }

    void start()
    {
        manager = std::make_unique<ClipboardManager>(loop, store, settings, feedback, island, pasteboard,
                                                     front, keys, undo);
        manager->start();
    }

    // The program ends in the ordinary way and is started anew.
    void restart()
    {
        store.flushNow();
        manager.reset();
        start();
    }

    void copyText(const QString &text)
    {
        pasteboard.copyText(text);
        loop.settle();
    }
    void copyData(const QString &type, const QByteArray &bytes)
    {
        pasteboard.copy({{type, bytes}});
        loop.settle();
    }
    void copyImage(const QImage &image) { copyData(QStringLiteral("image/png"), encoded(image)); }

    const ClipItem &item(qsizetype index) const { return manager->items().at(index); }
    QStringList copied() const { return texts(manager->items()); }
    QString pasted() const
    {
        return QString::fromUtf8(pasteboard.bytes(QStringLiteral("text/plain;charset=utf-8")));
    }
    QStringList pictures() const { return store.clipsDir().entryList(QDir::Files, QDir::Name); }
    QStringList asidePictures() const
    {
        return QDir(store.clipsDir().filePath(QStringLiteral(".undo"))).entryList(QDir::Files);
    }
    QString announced() const
    {
        const LiveActivity activity = island.activity().value_or(LiveActivity());
        return activity.leading + u'|' + activity.trailing.value_or(QString());
    }
};

}

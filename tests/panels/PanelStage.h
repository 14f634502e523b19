#pragma once

#include "clipboard/ClipRig.h"
#include "panels/LinkedModules.h"
#include "panels/ThisComputer.h"
#include "panels/WallClock.h"
#include "platform/fakes/RecordedFileManager.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

namespace velm
{

// The real panels in a window, over the real island and clipboard, with a desktop in memory below.
struct PanelStage : ClipRig {
    WallClock clock{loop};
    RecordedFileManager fileManager;
    ThisComputer computer{keys, haptics, fileManager, QStringLiteral("/data")};
    const bool isSoftware = drawsBySoftware(); // before the first window
    QQuickView view;

    explicit PanelStage(bool isStill = true)
    {
        view.engine()->addImportPath(QStringLiteral(":/qml"));
        view.setInitialProperties({{QStringLiteral("isStill"), isStill}});
        view.setSource(QUrl(QStringLiteral("qrc:/qml/Velm/Panels/Main.qml")));
        view.show();
        view.requestActivate();
    }

    static bool drawsBySoftware()
    {
        static const bool once = (QQuickWindow::setGraphicsApi(QSGRendererInterface::Software), true);
        return once;
    }

    // Opens the history of three clips; the newest, "third", is the first row.
    void openClips()
    {
        for (const char *text : {"first", "second", "third"}) {
            loop.advance(1s);
            copyText(QString::fromLatin1(text));
        }
        island.open(VelmTab::Clipboard, IslandController::Focus::Take);
        settle();
    }

    void settle()
    {
        loop.settle();
        QCoreApplication::processEvents();
        view.grabWindow(); // lays out what is new
        QCoreApplication::processEvents();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&view, key, modifiers);
        settle();
    }
    void type(const QString &text)
    {
        for (const QChar letter : text)
            QTest::keyClick(&view, letter.toLatin1());
        settle();
    }
};

}

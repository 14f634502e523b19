#include "program/QmlModules.h"

#include "clipboard/ClipThumbnails.h"
#include "panels/LinkedModules.h"
#include "program/Application.h"
#include "theme/Fonts.h"

#include <QGuiApplication>
#include <QLocale>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QStyleHints>
#include <QTranslator>

namespace velm
{

namespace
{

// The C and POSIX locales get the source texts as they stand.
void installCatalogue()
{
    static QTranslator catalogue;
    if (QLocale().language() == QLocale::C)
        return;
    if (catalogue.load(QLocale(), QStringLiteral("velm"), QStringLiteral("_"), QStringLiteral(":/i18n")) ||
        catalogue.load(QStringLiteral(":/i18n/velm_en.qm")))
        QCoreApplication::installTranslator(&catalogue);
}

}

void prepareQml()
{
    // The software scene graph needs no GPU driver in the process: a third of the memory. VELM_RENDERER=gpu
    // is for screens so large that drawing them by hand is slow.
    if (qgetenv("VELM_RENDERER") != "gpu")
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickWindow::setDefaultAlphaBuffer(true);
    QGuiApplication::styleHints()->setCursorFlashTime(
        0); // a blinking caret would wake the machine twice a second
    installSymbolFont();
    installCatalogue();
}

void prepareEngine(QQmlEngine &engine, Application &application)
{
    engine.addImportPath(QStringLiteral("qrc:/qml"));
    engine.addImageProvider(
        QLatin1String(ClipThumbnails::providerName),
        new ClipThumbnails(application.loop(), ClipFolder(application.store().clipsDir())));
}

}

#include "program/Renderer.h"

#include "platform/runloop/VirtualRunLoop.h"
#include "program/PreviewView.h"
#include "program/SampleData.h"
#include "program/TrialPlaces.h"

#include <QDir>

#include <cstdio>
#include <vector>

namespace velm
{

namespace
{

struct Scene {
    QString name;
    std::function<void(Application &)> arrange = [](Application &) {};
};

LiveActivity copied(Seconds duration)
{
    return {.id = QStringLiteral("copied"),
            .icon = QStringLiteral("link"),
            .tint = Tint::Clipboard,
            .leading = QStringLiteral("Copied"),
            .trailing = QStringLiteral("https://docs.pytho"),
            .duration = duration};
}

void openClipboard(Application &velm)
{
    velm.island().open(VelmTab::Clipboard, IslandController::Focus::Leave);
}

std::vector<Scene> closedScenes()
{
    return {
        {QStringLiteral("island-idle")},
        {QStringLiteral("island-peek"), [](Application &velm) { velm.island().peek(true); }},
        {QStringLiteral("island-dropcatcher"), [](Application &velm) { velm.island().beginCatchingDrop(); }},
        {QStringLiteral("island-idle-activity"),
         [](Application &velm) { velm.island().present(copied(Seconds(60))); }},
        {QStringLiteral("island-idle-progress"),
         [](Application &velm) {
             LiveActivity activity = copied(Seconds(60));
             activity.icon = QStringLiteral("brain.head.profile");
             activity.tint = Tint::Timer;
             activity.leading = QStringLiteral("Thermodynamics p");
             activity.trailing = QStringLiteral("18:24");
             activity.progress = 0.264;
             velm.island().present(activity);
         }},
    };
}

std::vector<Scene> panelScenes()
{
    std::vector<Scene> scenes;
    for (const VelmTab tab : allTabs())
        scenes.push_back({QStringLiteral("panel-") + rawValue(tab), [tab](Application &velm) {
                              velm.island().open(tab, IslandController::Focus::Leave);
                          }});
    scenes.push_back({QStringLiteral("panel-clipboard-search"), [](Application &velm) {
                          openClipboard(velm);
                          velm.clipboard().setSearch(QStringLiteral("docs"));
                      }});
    scenes.push_back({QStringLiteral("panel-clipboard-nothing-found"), [](Application &velm) {
                          openClipboard(velm);
                          velm.clipboard().setSearch(QStringLiteral("thermocouple"));
                      }});
    scenes.push_back({QStringLiteral("panel-clipboard-paused"), [](Application &velm) {
                          openClipboard(velm);
                          velm.clipboard().togglePause();
                      }});
    scenes.push_back({QStringLiteral("panel-clipboard-undo"), [](Application &velm) {
                          openClipboard(velm);
                          velm.clipboard().remove(velm.clipboard().items().constLast().id);
                      }});
    for (const SettingsPage page :
         {SettingsPage::Sections, SettingsPage::General, SettingsPage::Clipboard, SettingsPage::About})
        scenes.push_back({QStringLiteral("settings-") + rawValue(page), [page](Application &velm) {
                              velm.island().openSettings(page, IslandController::Focus::Leave);
                          }});
    return scenes;
}

// Each scene on a freshly built program, so that none shows what another has left.
bool draw(const Scene &scene, const QDir &folder, bool hasSamples)
{
    const TrialPlaces trial(QStringLiteral("Velm-Preview"));
    VirtualRunLoop loop;
    if (hasSamples)
        writeSampleClips(trial.places().dataFolderName, loop.wallTime());
    Application velm(loop, makeTrialPlatform(), trial.places());
    velm.island().start();
    PreviewView view(velm);
    scene.arrange(velm);
    loop.settle();
    const QString path = folder.filePath(scene.name + QStringLiteral(".png"));
    if (view.grabSettled(loop).save(path))
        return true;
    fprintf(stderr, "velm: cannot write %s\n", qPrintable(path));
    return false;
}

}

int renderPictures(const QString &folder)
{
    const QDir target(folder);
    if (!target.mkpath(QStringLiteral("."))) {
        fprintf(stderr, "velm: cannot make the folder %s\n", qPrintable(folder));
        return 1;
    }
    for (const auto &scenes : {closedScenes(), panelScenes()})
        for (const Scene &scene : scenes)
            if (!draw(scene, target, true))
                return 1;
    const Scene empty{QStringLiteral("panel-clipboard-empty"), openClipboard};
    return draw(empty, target, false) ? 0 : 1;
}

}

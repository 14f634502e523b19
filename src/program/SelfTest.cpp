#include "program/SelfTest.h"

#include "clipboard/Fingerprint.h"
#include "platform/runloop/VirtualRunLoop.h"
#include "program/TrialPlaces.h"

#include <cstdio>

namespace velm
{

namespace
{

// Counts what held and names what did not.
class Report
{
public:
    void check(const char *rule, bool holds)
    {
        (holds ? m_passed : m_failed) += 1;
        if (!holds)
            printf("FAILED: %s\n", rule);
    }

    int close() const
    {
        printf("%d passed, %d failed\n", m_passed, m_failed);
        return m_failed == 0 ? 0 : 1;
    }

private:
    int m_passed = 0;
    int m_failed = 0;
};

constexpr QSize window = QSize(800, 500);
constexpr int panelBottom = 430;
constexpr int panelLeft = (800 - 660) / 2;

bool takesClick(const IslandController &island, QPoint point)
{
    return island.geometry().inputRegion().contains(point);
}

void checkExpanded(Report &report, IslandController &island)
{
    island.open(VelmTab::Clipboard, IslandController::Focus::Leave);
    const QRectF hit = island.hitRect();
    report.check("the expanded panel is flush with the window's top edge",
                 hit.y() + hit.height() == window.height());
    report.check("the top of the panel is clickable", takesClick(island, {400, 0}));
    report.check("the bottom of the panel is clickable", takesClick(island, {400, panelBottom - 1}));
    report.check("below the panel clicks pass", !takesClick(island, {400, panelBottom}));
    report.check("the bottom of the window is not clickable",
                 !takesClick(island, {400, window.height() - 1}));
    report.check("left of the panel clicks pass", !takesClick(island, {panelLeft - 1, 200}));
    report.check("right of the panel clicks pass", !takesClick(island, {window.width() - panelLeft, 200}));
    report.check("the expanded island accepts mouse events", !island.geometry().ignoresMouse());
    report.check("the expanded island fits the window", island.islandSize().width() <= window.width() &&
                                                            island.islandSize().height() <= window.height());
    island.close();
}

void checkClosed(Report &report, IslandController &island)
{
    report.check("the idle island ignores mouse events",
                 island.geometry().ignoresMouse() && island.geometry().inputRegion().isEmpty());
    const IslandGeometry peek{IslandMode::Peek, island.metrics()};
    report.check("the peeking island ignores mouse events",
                 peek.ignoresMouse() && peek.inputRegion().isEmpty());
    const double side = (peek.islandSize().width() - island.metrics().notchSize.width()) / 2;
    report.check("the peek reaches 65 points past the camera on each side", side == 65);
    const QRectF screen = island.metrics().screen.geometry;
    report.check(
        "the notch itself is hoverable",
        covers(island.geometry().hoverTrigger(), QPointF(screen.center().x(), screen.top()).toPoint()));
    report.check("the window is no larger than 800 by 500", IslandGeometry::windowSize == QSizeF(window));
    island.beginCatchingDrop();
    report.check("the drop zone takes drags", takesClick(island, {400, 60}));
    island.endCatchingDrop();
    report.check("after the drop the island rests", island.mode() == IslandMode::Idle);
}

void checkClips(Report &report)
{
    report.check("a hexadecimal colour is a colour",
                 ClipItem::classify(QStringLiteral("#FF8800")) == ClipKind::Color);
    report.check("a web address is a link",
                 ClipItem::classify(QStringLiteral("https://example.org/a")) == ClipKind::Link);
    report.check("two markers make code", ClipItem::classify(QStringLiteral("let x = 1;")) == ClipKind::Code);
    report.check("prose is text", ClipItem::classify(QStringLiteral("a; b")) == ClipKind::Text);
    ClipItem item;
    item.id = QStringLiteral("A");
    item.fingerprint = sha256Hex(QStringLiteral("a"));
    item.date = QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
    report.check("a clip survives its file", fromJson<ClipItem>(toJson(item)) == item);
}

}

int runSelfTest()
{
    Report report;
    const TrialPlaces trial(QStringLiteral("Velm-SelfTest"));
    VirtualRunLoop loop;
    Application velm(loop, makeTrialPlatform(), trial.places());
    checkExpanded(report, velm.island());
    checkClosed(report, velm.island());
    checkClips(report);
    return report.close();
}

}

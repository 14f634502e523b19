#include "panels/PanelStage.h"

#include <QSignalSpy>

#include <functional>

namespace velm
{

class PanelRestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void an_island_at_rest_draws_nothing_data();
    void an_island_at_rest_draws_nothing();
    void the_closed_island_has_no_rows();
    void no_state_complains_data();
    void no_state_complains();
};

namespace
{
using Arrange = std::function<void(PanelStage &)>;

void addStates()
{
    QTest::addColumn<Arrange>("arrange");

    QTest::newRow("idle") << Arrange([](PanelStage &) {});
    QTest::newRow("activity") << Arrange([](PanelStage &stage) {
        stage.island.present({.id = u"a"_qs, .icon = u"link"_qs, .leading = u"Copied"_qs, .sticky = true});
    });
    QTest::newRow("peek") << Arrange([](PanelStage &stage) {
        stage.settings.setOpenOnHover(false);
        stage.enter();
    });
    QTest::newRow("catching") << Arrange([](PanelStage &stage) { stage.island.beginCatchingDrop(); });
    QTest::newRow("clipboard") << Arrange([](PanelStage &stage) { stage.openClips(); });
    QTest::newRow("a section to come")
        << Arrange([](PanelStage &stage) { stage.island.open(VelmTab::Shots); });
    QTest::newRow("settings") << Arrange([](PanelStage &stage) {
        for (const int page : {0, 1, 2, 3}) {
            stage.island.openSettings(SettingsPage(page));
            stage.settle();
        }
    });
    QTest::newRow("open and closed") << Arrange([](PanelStage &stage) {
        stage.openClips();
        stage.island.close();
    });
}

QStringList complaints;
void note(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type >= QtWarningMsg && type != QtInfoMsg && message.contains(QStringLiteral("qrc:")))
        complaints.append(message);
}
}

void PanelRestTest::an_island_at_rest_draws_nothing_data() { addStates(); }

void PanelRestTest::an_island_at_rest_draws_nothing()
{
    QFETCH(Arrange, arrange);
    PanelStage stage(false);
    arrange(stage);
    QSignalSpy drawn(&stage.view, &QQuickWindow::afterAnimating);

    // It comes to rest: a while passes in which no frame is drawn.
    QTRY_VERIFY_WITH_TIMEOUT((drawn.clear(), QTest::qWait(100), drawn.isEmpty()), 5000);
}

void PanelRestTest::the_closed_island_has_no_rows()
{
    PanelStage stage;
    stage.openClips();
    QCOMPARE(stage.manager->model()->count(), 3);

    stage.island.close();
    stage.settle();

    QCOMPARE(stage.manager->model()->count(), 0);
}

void PanelRestTest::no_state_complains_data() { addStates(); }

void PanelRestTest::no_state_complains()
{
    QFETCH(Arrange, arrange);
    complaints.clear();
    const auto before = qInstallMessageHandler(note);
    {
        PanelStage stage;
        arrange(stage);
        stage.settle();
    }
    qInstallMessageHandler(before);

    QCOMPARE(complaints, QStringList());
}

}

QTEST_MAIN(velm::PanelRestTest)
#include "PanelRestTest.moc"

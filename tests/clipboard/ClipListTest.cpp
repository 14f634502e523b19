#include "clipboard/ClipRig.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace velm;

class ClipListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_are_there_only_while_somebody_looks();
    void a_row_shows_its_clip();
    void a_row_has_one_line();
    void the_list_follows_filter_and_search();
    void ages_grow_by_the_minute();
    void a_copy_inserts_one_row();
    void the_chips_follow_the_history();
};

namespace
{

QStringList previews(const ClipRig &rig)
{
    QStringList previews;
    for (const ClipRow &row : rig.manager->model()->values())
        previews.append(row.preview);
    return previews;
}

}

void ClipListTest::rows_are_there_only_while_somebody_looks()
{
    ClipRig rig;
    rig.copyText("a");
    QCOMPARE(rig.manager->model()->count(), 0);

    rig.manager->setActive(true);
    QCOMPARE(rig.manager->model()->count(), 1);
    rig.copyText("b");
    QCOMPARE(previews(rig), QStringList({"b", "a"}));

    rig.manager->setActive(false);
    QCOMPARE(rig.manager->model()->count(), 0);
    rig.rest(10s);
    QCOMPARE(rig.loop.armedTimers(), 0);
}

void ClipListTest::a_row_shows_its_clip()
{
    const QDateTime now = noon.addSecs(240);
    const ClipItem color = clipOfKind(ClipKind::Color, "#ff0000");
    ClipItem image = clipOfKind(ClipKind::Image, "9×9");
    image.imageFile = QStringLiteral("X.png");

    const ClipRow colorRow = makeRow(color, {7, 1}, now);
    const ClipRow imageRow = makeRow(image, {}, now);

    QCOMPARE(colorRow.id, color.id);
    QCOMPARE(colorRow.swatch, QColor(Qt::red));
    QCOMPARE(colorRow.icon, "paintpalette.fill");
    QCOMPARE(colorRow.subtitle, "7 chars · 1 word • Editor");
    QCOMPARE(colorRow.age, "4 min");
    QVERIFY(colorRow.thumbnail.isEmpty());
    QCOMPARE(imageRow.preview, "Image");
    QCOMPARE(imageRow.swatch.alpha(), 0);
    QCOMPARE(imageRow.thumbnail, QUrl("image://clip/X.png"));
}

void ClipListTest::a_row_has_one_line()
{
    const ClipRow row = makeRow(textClip(u"a\r\nb\tc\0d\u2028"_qs + QString(1000, u'e')), {}, noon);

    QCOMPARE(row.preview.left(10), "a  b c d e");
    QCOMPARE(row.preview.size(), 241); // CR LF is one of the 240 characters
}

void ClipListTest::the_list_follows_filter_and_search()
{
    ClipRig rig;
    rig.copyText("alpha");
    rig.copyText("https://beta.org");
    rig.copyText("gamma");
    rig.manager->setActive(true);
    QSignalSpy searched(rig.manager.get(), &ClipboardManager::searchChanged);
    QSignalSpy filtered(rig.manager.get(), &ClipboardManager::filterChanged);

    rig.manager->setSearch("A");
    QCOMPARE(previews(rig), QStringList({"gamma", "https://beta.org", "alpha"}));
    rig.manager->setFilter(ClipFilter::Text);
    QCOMPARE(previews(rig), QStringList({"gamma", "alpha"}));
    rig.manager->setSearch("PH");
    QCOMPARE(previews(rig), QStringList({"alpha"}));
    QCOMPARE(texts(rig.manager->visibleItems()), QStringList({"alpha"}));
    rig.manager->setSearch("PH");

    QCOMPARE(searched.size(), 2);
    QCOMPARE(filtered.size(), 1);
}

void ClipListTest::ages_grow_by_the_minute()
{
    ClipRig rig;
    rig.copyText("a");
    rig.manager->setActive(true);
    QCOMPARE(rig.manager->model()->values().first().age, "now");
    QSignalSpy changed(rig.manager->model(), &QAbstractItemModel::dataChanged);

    rig.rest(1min);

    QCOMPARE(rig.manager->model()->values().first().age, "1 min");
    QCOMPARE(changed.size(), 1);
}

void ClipListTest::a_copy_inserts_one_row()
{
    ClipRig rig;
    rig.copyText("a");
    rig.copyText("b");
    rig.manager->setActive(true);
    QAbstractItemModelTester tester(rig.manager->model());
    QSignalSpy inserted(rig.manager->model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy moved(rig.manager->model(), &QAbstractItemModel::rowsMoved);
    QSignalSpy reset(rig.manager->model(), &QAbstractItemModel::modelReset);

    rig.copyText("c");
    rig.rest(1s);
    rig.copyText("a");

    QCOMPARE(inserted.size(), 1);
    QCOMPARE(moved.size(), 1);
    QCOMPARE(reset.size(), 0);
    QCOMPARE(previews(rig), QStringList({"a", "c", "b"}));
}

void ClipListTest::the_chips_follow_the_history()
{
    ClipRig rig;
    QSignalSpy changed(rig.manager.get(), &ClipboardManager::itemsChanged);

    rig.copyText("a");
    rig.copyText("https://b");

    QCOMPARE(changed.size(), 2);
    QCOMPARE(rig.manager->counts(), (ClipCounts{.all = 2, .text = 1, .link = 1}));
    QCOMPARE(rig.manager->totalCount(), 2);
}

QTEST_MAIN(ClipListTest)
#include "ClipListTest.moc"

#include "clipboard/ClipFolder.h"
#include "clipboard/ClipMaking.h"

#include <QtTest>

using namespace velm;

class ClipFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(QDir(m_data.path()).mkpath("Clips")); }
    void cleanup() { QDir(m_data.filePath("Clips")).removeRecursively(); }
    void a_picture_is_only_for_the_user();
    void what_is_put_aside_can_be_brought_back();
    void leftovers_are_removed_at_start_unless_needed();
    void names_that_lead_out_are_refused_data();
    void names_that_lead_out_are_refused();
    void what_is_no_picture_reads_as_nothing();

private:
    QStringList files() const
    {
        return QDir(m_data.filePath("Clips"))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    QTemporaryDir m_data;
    ClipFolder m_folder{QDir(m_data.filePath("Clips"))};
    QByteArray m_png = encoded(plainImage({2, 2}, Qt::blue));
};

void ClipFolderTest::a_picture_is_only_for_the_user()
{
    QVERIFY(m_folder.write("A.png", m_png));

    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(m_folder.path("A.png")) & others));
    QCOMPARE(m_folder.read("A.png"), m_png);
    QVERIFY(!m_folder.write("A.png", "x"));
    QCOMPARE(m_folder.read("A.png"), m_png);
}

void ClipFolderTest::what_is_put_aside_can_be_brought_back()
{
    m_folder.write("A.png", m_png);

    m_folder.putAside("A.png");
    QVERIFY(!files().contains("A.png"));
    m_folder.bringBack("A.png");

    QCOMPARE(m_folder.read("A.png"), m_png);
}

void ClipFolderTest::leftovers_are_removed_at_start_unless_needed()
{
    m_folder.write("A.png", m_png);
    m_folder.write("B.png", m_png);
    m_folder.putAside("A.png");
    m_folder.putAside("B.png");

    m_folder.tidy({"B.png", "C.png"});

    QCOMPARE(files(), QStringList({"B.png"}));
}

void ClipFolderTest::names_that_lead_out_are_refused_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"", ".", "..", "../precious.png", "/etc/passwd", ".undo", "a/b.png"})
        QTest::newRow(name) << name;
}

void ClipFolderTest::names_that_lead_out_are_refused()
{
    QFETCH(QString, name);
    QFile precious(m_data.filePath("precious.png"));
    QVERIFY(precious.open(QFile::WriteOnly) && precious.write(m_png) == m_png.size());
    precious.close();

    QVERIFY(m_folder.read(name).isEmpty());
    m_folder.remove(name);
    m_folder.putAside(name);
    m_folder.removeAside(name);

    QVERIFY(precious.exists());
    QVERIFY(QFile::exists("/etc/passwd"));
}

void ClipFolderTest::what_is_no_picture_reads_as_nothing()
{
    m_folder.write("A.png", m_png.chopped(20));

    QVERIFY(m_folder.read("A.png").isEmpty());
    QVERIFY(m_folder.read("B.png").isEmpty());
}

QTEST_MAIN(ClipFolderTest)
#include "ClipFolderTest.moc"

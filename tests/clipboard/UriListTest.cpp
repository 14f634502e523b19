#include "clipboard/UriList.h"

#include <QtTest>

using namespace velm;

class UriListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void local_files_are_found_data();
    void local_files_are_found();
    void a_written_list_reads_back();
};

void UriListTest::local_files_are_found_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QStringList>("paths");
    const auto row = [](const char *name, const QByteArray &list, const QStringList &paths) {
        QTest::newRow(name) << list << paths;
    };
    row("empty", "", {});
    row("one", "file:///a/b", {"/a/b"});
    row("CR LF", "file:///a\r\nfile:///b\r\n", {"/a", "/b"});
    row("LF", "file:///a\nfile:///b", {"/a", "/b"});
    row("CR", "file:///a\rfile:///b", {"/a", "/b"});
    row("comments and empty lines", "# x\r\n\r\nfile:///a\r\n#file:///b\r\n", {"/a"});
    row("order is kept, twice too", "file:///b\nfile:///a\nfile:///b", {"/b", "/a", "/b"});
    row("GNOME's form", "copy\nfile:///a\nfile:///b", {"/a", "/b"});
    row("GNOME's form, cut", "cut\nfile:///a", {"/a"});
    row("percent signs", "file:///a%20b/%C3%BC%25%23%3F", {QString::fromUtf8("/a b/ü%#?")});
    row("bytes as they are", "file:///\xC3\xBC", {QString::fromUtf8("/ü")});
    row("localhost", "file://localhost/a\nFILE://LOCALHOST/b", {"/a", "/b"});
    row("without a host", "file:/a", {"/a"});
    row("folder", "file:///a/\nfile:///", {"/a", "/"});
    row("query and fragment", "file:///a?b#c", {"/a"});
    row("spaces around", "  file:///a \t\r\n", {"/a"});
    row("remote", "http://x/a\nsftp://x/b\nfile://server/c\nsmb:///d", {});
    row("a host that only begins so", "file://localhostess/a", {});
    row("relative", "a/b\nfile:a\nfile://a\nfile:\n/a/b", {});
    row("broken percent signs", "file:///a%\nfile:///a%2\nfile:///%zz\nfile:///%2g", {});
    row("NUL", "file:///a%00b", {});
    row("no UTF-8", "file:///a%ff", {});
    row("good among bad", "http://x\nfile:///%\nfile:///a\nb", {"/a"});
}

void UriListTest::local_files_are_found()
{
    QFETCH(QByteArray, list);
    QFETCH(QStringList, paths);

    QCOMPARE(localPaths(list), paths);
}

void UriListTest::a_written_list_reads_back()
{
    const QStringList paths{"/a b/c.txt", QString::fromUtf8("/Grüße/世界 😀"), "/x%20y#z?w", "/line\nbreak",
                            "/"};

    const QByteArray list = uriList(paths);

    QCOMPARE(localPaths(list), paths);
    QCOMPARE(uriList({"/a b~-_.C"}), "file:///a%20b~-_.C\r\n");
}

QTEST_APPLESS_MAIN(UriListTest)
#include "UriListTest.moc"

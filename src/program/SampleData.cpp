#include "program/SampleData.h"

#include "app/RecordCodec.h"
#include "clipboard/ClipItem.h"
#include "clipboard/Fingerprint.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QStandardPaths>

namespace velm
{

namespace
{

const QString pictureName = QStringLiteral("5D0C3A52-9E1B-4C5C-8E0A-3B1B6F2F7C11.png");

struct Sample {
    ClipKind kind;
    QString text;
    QString source;
    qint64 secondsAgo;
    bool isPinned = false;
    QStringList paths = {};
};

QList<Sample> samples()
{
    const auto s = [](const char *text) { return QString::fromUtf8(text); };
    constexpr qint64 minute = 60, hour = 3600, day = 86400;
    return {
        {ClipKind::Link, s("https://docs.python.org/3/library/asyncio-task.html"), s("Firefox"), 20},
        {ClipKind::Text, s("The lab slot moved to Thursday 14:00, room B204 — please confirm by tonight"),
         s("Mail"), 4 * minute, true},
        {ClipKind::Color, s("#5B8CFF"), s("Inkscape"), 9 * minute},
        {ClipKind::Code, s("const total = items.reduce((a, b) => a + b.size, 0);"), s("Kate"), 12 * minute},
        {ClipKind::Image, s("640×480"), s("Spectacle"), 31 * minute},
        {ClipKind::Files,
         s("/home/mira/thesis-draft-v7.pdf\n/home/mira/figures.zip\n/home/mira/refs.bib"),
         s("Dolphin"),
         hour,
         false,
         {s("/home/mira/thesis-draft-v7.pdf"), s("/home/mira/figures.zip"), s("/home/mira/refs.bib")}},
        {ClipKind::Text, s("Renew library books friday #life"), s("Firefox"), 2 * hour},
        {ClipKind::Link, s("mira.okafor@example.org"), s("Thunderbird"), 3 * hour},
        {ClipKind::Text, s("موعد المختبر يوم الخميس الساعة الثانية"), s("Telegram"), 5 * hour},
        {ClipKind::Text,
         s("Donaudampfschifffahrtselektrizitätenhauptbetriebswerkbauunterbeamtengesellschaft, "
           "eingetragen im Vereinsregister zu Wien seit 1996"),
         s("LibreOffice Writer"), day},
        {ClipKind::Code, s("ssh -L 8888:localhost:8888 mira@lab-gpu-2; tmux attach || tmux new -s work;"),
         s("Konsole"), 2 * day, true},
        {ClipKind::Color, s("rgba(255, 95, 87, 0.6)"), s("GIMP"), 3 * day},
    };
}

ClipItem clip(const Sample &sample, int number, const QDateTime &now)
{
    ClipItem item;
    item.id = QStringLiteral("%1D2F7A10-6C3B-4E0D-9B57-0A4C2E8F1B3D")
                  .arg(number, 2, 16, QLatin1Char('0'))
                  .toUpper()
                  .left(36);
    item.kind = sample.kind;
    item.text = sample.text;
    item.filePaths = sample.paths;
    item.sourceApp = sample.source;
    item.date = now.addSecs(-sample.secondsAgo);
    item.pinned = sample.isPinned;
    if (sample.isPinned)
        item.pinnedAt = item.date;
    if (sample.kind == ClipKind::Image)
        item.imageFile = pictureName;
    item.fingerprint = sha256Hex(sample.text);
    return item;
}

// A sunset over hills, as a person might have cut from a photograph.
QImage samplePicture()
{
    QImage picture(640, 480, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, 480);
    sky.setColorAt(0, QColor::fromHsl(255, 110, 150));
    sky.setColorAt(1, QColor::fromHsl(28, 180, 170));
    painter.fillRect(picture.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromHsl(45, 220, 215));
    painter.drawEllipse(QPointF(430, 170), 58, 58);
    for (int hill = 0; hill < 3; ++hill) {
        painter.setBrush(QColor::fromHsl(265, 70, 90 - 26 * hill));
        painter.drawEllipse(QRectF(-220 + 260 * hill, 300 + 46 * hill, 620, 420));
    }
    return picture;
}

}

void writeSampleClips(const QString &dataFolderName, const QDateTime &now)
{
    QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    folder.mkpath(dataFolderName + QStringLiteral("/Clips"));
    folder.cd(dataFolderName);
    samplePicture().save(folder.filePath(QStringLiteral("Clips/") + pictureName));
    QList<ClipItem> items;
    for (const Sample &sample : samples())
        items << clip(sample, static_cast<int>(items.size()), now);
    QFile file(folder.filePath(QStringLiteral("clipboard.json")));
    if (file.open(QIODevice::WriteOnly))
        writeRecords(file, items);
}

}

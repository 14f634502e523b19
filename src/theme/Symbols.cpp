#include "theme/Symbols.h"

#include "theme/Fonts.h"

#include <QHash>
#include <QPainter>
#include <QSet>

namespace velm
{

namespace
{

// Symbol names and the code points of their glyphs in the bundled font.
const QHash<QString, QChar> &codePoints()
{
    static const QHash<QString, QChar> table{
        {QStringLiteral("arrow.down.circle.fill"), u'\xF181'},
        {QStringLiteral("arrow.uturn.backward.circle.fill"), u'\xE8BA'},
        {QStringLiteral("arrow.uturn.backward"), u'\xE166'},
        {QStringLiteral("battery.0percent"), u'\xEBDC'},
        {QStringLiteral("battery.25percent"), u'\xEBE0'},
        {QStringLiteral("battery.50percent"), u'\xEBDD'},
        {QStringLiteral("battery.75percent"), u'\xEBD4'},
        {QStringLiteral("battery.100percent"), u'\xE1A4'},
        {QStringLiteral("battery.100percent.bolt"), u'\xE1A3'},
        {QStringLiteral("brain.head.profile"), u'\xEA4A'},
        {QStringLiteral("camera.viewfinder"), u'\xE412'},
        {QStringLiteral("checkmark.circle.fill"), u'\xE86C'},
        {QStringLiteral("checkmark"), u'\xE876'},
        {QStringLiteral("checkmark.circle"), u'\xE92D'},
        {QStringLiteral("chevron.left.forwardslash.chevron.right"), u'\xE86F'},
        {QStringLiteral("cube.box.fill"), u'\xE9FE'},
        {QStringLiteral("cup.and.saucer.fill"), u'\xE541'},
        {QStringLiteral("doc.badge.plus"), u'\xE89C'},
        {QStringLiteral("doc.fill"), u'\xE24D'},
        {QStringLiteral("doc.on.clipboard.fill"), u'\xE14F'},
        {QStringLiteral("doc.on.doc.fill"), u'\xE14D'},
        {QStringLiteral("doc.text.fill"), u'\xE873'},
        {QStringLiteral("exclamationmark.circle.fill"), u'\xE000'},
        {QStringLiteral("exclamationmark.triangle.fill"), u'\xE002'},
        {QStringLiteral("figure.walk"), u'\xE536'},
        {QStringLiteral("film.fill"), u'\xE02C'},
        {QStringLiteral("folder.fill"), u'\xE2C7'},
        {QStringLiteral("folder.fill.badge.gearshape"), u'\xE675'},
        {QStringLiteral("folder.badge.plus"), u'\xE2CC'},
        {QStringLiteral("gauge.with.dots.needle.33percent"), u'\xE9E4'},
        {QStringLiteral("hammer.fill"), u'\xEA59'},
        {QStringLiteral("internaldrive.fill"), u'\xE1DB'},
        {QStringLiteral("iphone"), u'\xE32C'},
        {QStringLiteral("link"), u'\xE157'},
        {QStringLiteral("menubar.dock.rectangle"), u'\xE30C'},
        {QStringLiteral("note.text"), u'\xF1FC'},
        {QStringLiteral("paintpalette.fill"), u'\xE40A'},
        {QStringLiteral("pause.circle.fill"), u'\xE1A2'},
        {QStringLiteral("pause.fill"), u'\xE034'},
        {QStringLiteral("photo.fill"), u'\xE3F4'},
        {QStringLiteral("play.circle.fill"), u'\xE1C4'},
        {QStringLiteral("play.fill"), u'\xE037'},
        {QStringLiteral("safari.fill"), u'\xE87A'},
        {QStringLiteral("shippingbox.fill"), u'\xE1A1'},
        {QStringLiteral("square.on.square"), u'\xE3E0'},
        {QStringLiteral("textformat"), u'\xE165'},
        {QStringLiteral("tray.and.arrow.down.fill"), u'\xE168'},
        {QStringLiteral("tray.full.fill"), u'\xE156'},
        {QStringLiteral("sparkles"), u'\xE65F'},
        {QStringLiteral("timer"), u'\xE425'},
        {QStringLiteral("checklist"), u'\xE6B1'},
        {QStringLiteral("waveform"), u'\xE1B8'},
        {QStringLiteral("airpodspro"), u'\xF01F'},
        {QStringLiteral("wifi"), u'\xE63E'},
        {QStringLiteral("gearshape.fill"), u'\xE8B8'},
        {QStringLiteral("magnifyingglass"), u'\xE8B6'},
        {QStringLiteral("plus"), u'\xE145'},
        {QStringLiteral("xmark"), u'\xE5CD'},
        {QStringLiteral("xmark.circle.fill"), u'\xE5C9'},
        {QStringLiteral("pin.fill"), u'\xF10D'},
        {QStringLiteral("trash"), u'\xE872'},
        {QStringLiteral("doc.on.clipboard"), u'\xEA8E'},
        {QStringLiteral("chevron.down"), u'\xE5CF'},
        {QStringLiteral("chevron.right"), u'\xE5CC'},
        {QStringLiteral("chevron.up.chevron.down"), u'\xE5D7'},
        {QStringLiteral("arrow.right"), u'\xE5C8'},
        {QStringLiteral("arrow.clockwise"), u'\xE5D5'},
        {QStringLiteral("arrow.counterclockwise"), u'\xF053'},
        {QStringLiteral("forward.end.fill"), u'\xE044'},
        {QStringLiteral("backward.end.fill"), u'\xE045'},
        {QStringLiteral("plus.circle"), u'\xE148'},
        {QStringLiteral("goforward.plus"), u'\xEA5D'},
        {QStringLiteral("flag.fill"), u'\xE153'},
        {QStringLiteral("calendar"), u'\xE935'},
        {QStringLiteral("flame.fill"), u'\xEF55'},
        {QStringLiteral("scope"), u'\xE3B4'},
        {QStringLiteral("square.and.pencil"), u'\xE745'},
        {QStringLiteral("list.bullet"), u'\xE241'},
        {QStringLiteral("music.note"), u'\xE405'},
        {QStringLiteral("archivebox.fill"), u'\xEB2C'},
        {QStringLiteral("paintbrush.fill"), u'\xE3AE'},
        {QStringLiteral("app.fill"), u'\xE5C3'},
        {QStringLiteral("terminal.fill"), u'\xEB8E'},
        {QStringLiteral("questionmark.folder.fill"), u'\xF1C0'},
        {QStringLiteral("memorychip.fill"), u'\xE322'},
        {QStringLiteral("bolt.fill"), u'\xEA0B'},
        {QStringLiteral("cpu.fill"), u'\xE30D'},
        {QStringLiteral("clock"), u'\xE8B5'},
        {QStringLiteral("speaker.fill"), u'\xE32D'},
        {QStringLiteral("speaker.wave.2.fill"), u'\xE050'},
        {QStringLiteral("speaker.slash.fill"), u'\xE04F'},
        {QStringLiteral("headphones"), u'\xF01F'},
        {QStringLiteral("hifispeaker.fill"), u'\xE32E'},
        {QStringLiteral("display"), u'\xEF5B'},
        {QStringLiteral("keyboard.fill"), u'\xE312'},
        {QStringLiteral("computermouse.fill"), u'\xE323'},
        {QStringLiteral("gamecontroller.fill"), u'\xEA28'},
        {QStringLiteral("dot.radiowaves.right"), u'\xE1A7'},
        {QStringLiteral("arrow.down"), u'\xE5DB'},
        {QStringLiteral("arrow.up"), u'\xE5D8'},
        {QStringLiteral("globe"), u'\xE80B'},
        {QStringLiteral("lock.shield.fill"), u'\xE62F'},
        {QStringLiteral("cable.connector"), u'\xE8BE'},
        {QStringLiteral("square.grid.2x2.fill"), u'\xE9B0'},
        {QStringLiteral("slider.horizontal.3"), u'\xE429'},
        {QStringLiteral("info.circle.fill"), u'\xE88E'},
        {QStringLiteral("eye.slash.fill"), u'\xE8F5'},
        {QStringLiteral("arrow.up.forward.square"), u'\xE89E'},
        {QStringLiteral("line.3.horizontal"), u'\xE945'},
        {QStringLiteral("ellipsis"), u'\xE5D3'},
        {QStringLiteral("moon.fill"), u'\xE51C'},
        {QStringLiteral("hand.tap.fill"), u'\xE913'},
        {QStringLiteral("battery.slash"), u'\xE1A6'},
        {QStringLiteral("bluetooth"), u'\xE1A7'},
        {QStringLiteral("bell.fill"), u'\xE7F4'},
        {QStringLiteral("hand.raised.fill"), u'\xE925'},
        {QStringLiteral("key.fill"), u'\xE0DA'},
        {QStringLiteral("power"), u'\xE8AC'},
    };
    return table;
}

constexpr QChar unknownGlyph = u'\xF1C0'; // a question mark

}

QString Symbols::glyph(const QString &name) const { return codePoints().value(name, unknownGlyph); }

QStringList Symbols::names() const { return codePoints().keys(); }

// The font draws batteries upright.
bool Symbols::lies(const QString &name) const { return name.startsWith(u"battery."); }

bool Symbols::isMirrored(const QString &name) const
{
    static const QSet<QString> mirrored{QStringLiteral("chevron.right"), QStringLiteral("arrow.right"),
                                        QStringLiteral("arrow.uturn.backward"),
                                        QStringLiteral("list.bullet")};
    return mirrored.contains(name);
}

QIcon symbolIcon(const QString &name, const QColor &colour)
{
    QIcon icon;
    for (const int size : {16, 22, 32, 44}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        QFont font(installSymbolFont());
        font.setPixelSize(size);
        painter.setFont(font);
        painter.setPen(colour);
        painter.drawText(picture.rect(), Qt::AlignCenter, Symbols().glyph(name));
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

}

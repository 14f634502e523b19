#include "app/CommandHelp.h"

namespace velm
{

namespace
{

constexpr qsizetype width = 80;
constexpr qsizetype helpColumn = 34; // most commands fit before it

QString title(const Command &command)
{
    QStringList words{command.noun, command.verb, command.arguments};
    words.removeAll(QString());
    return words.join(u' ');
}

// The words in lines of at most `room` characters; what stands in brackets is not torn.
QStringList wrapped(const QString &text, qsizetype room)
{
    QStringList lines{QString()};
    const QStringList words = text.split(u' ');
    for (const QString &word : words) {
        QString &line = lines.last();
        if (line.isEmpty())
            line = word;
        else if (line.size() + 1 + word.size() <= room)
            line += u' ' + word;
        else
            lines.append(word);
    }
    return lines;
}

QString entry(const Command &command)
{
    constexpr qsizetype indent = 2;
    constexpr qsizetype hanging = 6;
    QStringList left = wrapped(title(command), width - hanging);
    for (qsizetype i = 0; i < left.size(); ++i)
        left[i] = QString(i == 0 ? indent : hanging, u' ') + left[i];
    const QStringList right = wrapped(command.help, width - helpColumn);
    QString text;
    const bool fitsBeside = left.size() == 1 && left.first().size() + indent <= helpColumn;
    if (!fitsBeside)
        text = left.join(u'\n') + u'\n';
    for (qsizetype i = 0; i < right.size(); ++i)
        text +=
            (fitsBeside && i == 0 ? left.first() : QString()).leftJustified(helpColumn) + right[i] + u'\n';
    return text;
}

// Roff takes a leading dot or apostrophe for a request, and a backslash for an escape.
QString roff(QString text)
{
    text.replace(u'\\', QStringLiteral("\\e")).replace(u'-', QStringLiteral("\\-"));
    return text.startsWith(u'.') || text.startsWith(u'\'') ? QStringLiteral("\\&") + text : text;
}

}

QString commandHelp(const QList<Command> &commands)
{
    QString text;
    for (const Command &command : commands)
        text += entry(command);
    return text;
}

QString programHelp(const QList<Command> &commands)
{
    const QList<Command> modes{
        {{},
         {},
         QStringLiteral("(nothing)"),
         QStringLiteral("start, or open the island of the one that runs"),
         {}},
        {{}, {}, QStringLiteral("--selftest"), QStringLiteral("check the program itself, and end"), {}},
        {{},
         {},
         QStringLiteral("--render DIR"),
         QStringLiteral("draw the island and every panel to files"),
         {}},
        {{}, {}, QStringLiteral("--version"), QStringLiteral("print the version"), {}},
        {{}, {}, QStringLiteral("--help"), QStringLiteral("print this; after a command, its own lines"), {}},
    };
    return QStringLiteral("usage: velm [COMMAND]\n\nStart modes\n") + commandHelp(modes) +
           QStringLiteral("\nCommands, sent to the Velm that runs; --json prints what they show as JSON\n") +
           commandHelp(commands) +
           QStringLiteral(
               "\nAn ID may be cut short, as long as it is clear. Exit status: 0 done, 1 refused,\n"
               "2 wrong usage, 3 Velm is not running.\n");
}

QString manualSection(const QList<Command> &commands)
{
    QString text = QStringLiteral(".SH COMMANDS\n");
    for (const Command &command : commands)
        text += QStringLiteral(".TP\n%1\n%2\n").arg(roff(title(command)), roff(command.help));
    return text;
}

}

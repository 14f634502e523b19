#include "program/StartMode.h"

namespace velm
{

namespace
{

constexpr int largestScale = 4;

// Takes "NAME VALUE" out of the words.
QString takeValue(QStringList &words, const QString &name)
{
    const qsizetype at = words.indexOf(name);
    if (at < 0 || at + 1 >= words.size())
        return {};
    words.removeAt(at);
    return words.takeAt(at);
}

}

StartRequest startRequest(QStringList words)
{
    if (words.contains(QStringLiteral("--selftest")))
        return {StartMode::SelfTest};
    if (words.contains(QStringLiteral("--render"))) {
        const QString folder = takeValue(words, QStringLiteral("--render"));
        const int scale = takeValue(words, QStringLiteral("--scale")).toInt();
        if (!folder.isEmpty())
            return {StartMode::Render, folder, qBound(1, scale, largestScale)};
        words.removeAll(QStringLiteral("--render"));
    }
    if (words.isEmpty())
        return {};
    if (words.first() == QStringLiteral("--version"))
        return {StartMode::Version};
    if (words.first() == QStringLiteral("--help") || words.first() == QStringLiteral("-h"))
        return {StartMode::Help};
    return {.mode = StartMode::Command, .words = words};
}

}

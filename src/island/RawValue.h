#pragma once

#include <QMetaEnum>
#include <QString>

#include <concepts>
#include <optional>

namespace velm
{

// An enum's value as files and commands write it: its key, with a small first letter.
template <typename Enum>
requires std::is_enum_v<Enum> QString rawValue(Enum value)
{
    QString name = QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(static_cast<int>(value)));
    if (!name.isEmpty())
        name[0] = name[0].toLower();
    return name;
}

// The other way round, to the letter.
template <typename Enum>
std::optional<Enum> fromRawValue(const QString &raw)
{
    const QMetaEnum values = QMetaEnum::fromType<Enum>();
    for (int i = 0; i < values.keyCount(); ++i) {
        const auto value = static_cast<Enum>(values.value(i));
        if (rawValue(value) == raw)
            return value;
    }
    return std::nullopt;
}

}

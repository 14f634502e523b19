#include "app/JsonWriter.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace velm
{

namespace
{

constexpr size_t bufferSize = 64 * 1024; // what is held of a text, however big it is

bool isPlain(char16_t unit) { return unit >= 0x20 && unit < 0x7f && unit != u'"' && unit != u'\\'; }

}

JsonWriter::JsonWriter(QIODevice &device) : m_device(device), m_buffer(bufferSize) {}

void JsonWriter::key(QStringView key)
{
    startValue();
    quoted(key);
    put(": ");
    m_hasKey = true;
}

void JsonWriter::string(QStringView text)
{
    startValue();
    quoted(text);
}

void JsonWriter::boolean(bool value)
{
    startValue();
    put(value ? QByteArrayView("true") : QByteArrayView("false"));
}

void JsonWriter::integer(qint64 value)
{
    startValue();
    put(QByteArray::number(value));
}

void JsonWriter::real(double value)
{
    startValue();
    if (!std::isfinite(value))
        m_hasFailed = true;
    put(QByteArray::number(value, 'g', QLocale::FloatingPointShortest));
}

bool JsonWriter::finish()
{
    put("\n");
    flush();
    return !m_hasFailed;
}

void JsonWriter::begin(char bracket)
{
    startValue();
    put({&bracket, 1});
    ++m_depth;
    m_isFirst = true;
}

void JsonWriter::end(char bracket)
{
    --m_depth;
    if (!m_isFirst)
        newLine();
    put({&bracket, 1});
    m_isFirst = false;
}

void JsonWriter::startValue()
{
    if (m_hasKey) {
        m_hasKey = false;
        return;
    }
    if (!m_isFirst)
        put(",");
    if (m_depth > 0)
        newLine();
    m_isFirst = false;
}

void JsonWriter::newLine()
{
    put("\n");
    for (int i = 0; i < m_depth; ++i)
        put("  ");
}

void JsonWriter::quoted(QStringView text)
{
    put("\"");
    for (auto unit = text.utf16(), end = unit + text.size(); unit != end && !m_hasFailed;) {
        // Nearly all of nearly every text is plain: as much of it as the buffer can take, in one go.
        const auto last = unit + std::min<qsizetype>(end - unit, bufferSize);
        const auto plainEnd = std::find_if_not(unit, last, isPlain);
        plain(unit, static_cast<size_t>(plainEnd - unit));
        unit = plainEnd;
        if (unit == last)
            continue;
        const bool isPair = QChar::isHighSurrogate(*unit) && end - unit > 1 && QChar::isLowSurrogate(unit[1]);
        if (isPair)
            put(QStringView(unit, 2).toUtf8());
        else
            escaped(*unit);
        unit += isPair ? 2 : 1;
    }
    put("\"");
}

// One unit that does not stand for itself: a control or quoting character, a lone surrogate, which UTF-8 has
// no form for, or a character outside ASCII.
void JsonWriter::escaped(char16_t unit)
{
    switch (unit) {
    case u'"':
        return put("\\\"");
    case u'\\':
        return put("\\\\");
    case u'\n':
        return put("\\n");
    case u'\r':
        return put("\\r");
    case u'\t':
        return put("\\t");
    default:
        break;
    }
    if (unit < 0x20 || unit == 0x7f || QChar::isSurrogate(unit))
        return put(QByteArray("\\u" + QByteArray::number(unit, 16).rightJustified(4, '0')));
    if (unit < 0x800) {
        const char bytes[] = {char(0xc0 | unit >> 6), char(0x80 | (unit & 0x3f))};
        return put({bytes, 2});
    }
    const char bytes[] = {char(0xe0 | unit >> 12), char(0x80 | (unit >> 6 & 0x3f)),
                          char(0x80 | (unit & 0x3f))};
    put({bytes, 3});
}

void JsonWriter::plain(const char16_t *units, size_t count)
{
    makeRoom(count);
    for (size_t i = 0; i < count; ++i)
        m_buffer[m_filled + i] = static_cast<char>(units[i]);
    m_filled += count;
}

void JsonWriter::put(QByteArrayView bytes)
{
    const auto count = static_cast<size_t>(bytes.size());
    makeRoom(count);
    std::copy_n(bytes.data(), count, m_buffer.data() + m_filled);
    m_filled += count;
}

void JsonWriter::makeRoom(size_t bytes)
{
    Q_ASSERT(bytes <= bufferSize);
    if (m_filled + bytes > bufferSize)
        flush();
}

void JsonWriter::flush()
{
    const auto size = static_cast<qint64>(m_filled);
    if (!m_hasFailed && m_device.write(m_buffer.data(), size) != size)
        m_hasFailed = true;
    m_filled = 0;
}

}

#pragma once

#include <QByteArrayView>
#include <QIODevice>
#include <QStringView>

#include <vector>

namespace velm
{

// Writes one JSON value to a device as it is told, indented by two spaces and ended by a line feed, holding
// no more of it than a buffer of 64 KiB.
class JsonWriter
{
public:
    explicit JsonWriter(QIODevice &device);

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    // The next value belongs to this key. Keys come in the order in which they are written.
    void key(QStringView key);

    void string(QStringView text);
    void boolean(bool value);
    void integer(qint64 value);
    void real(double value); // a number that is not finite makes the writer fail

    // Ends the text. False when anything could not be written.
    bool finish();

private:
    void begin(char bracket);
    void end(char bracket);
    void startValue();
    void newLine();
    void quoted(QStringView text);
    void escaped(char16_t unit);
    void plain(const char16_t *units, size_t count);
    void put(QByteArrayView bytes);
    void makeRoom(size_t bytes);
    void flush();

    QIODevice &m_device;
    std::vector<char> m_buffer;
    size_t m_filled = 0;
    int m_depth = 0;
    bool m_isFirst = true; // nothing stands yet in the innermost array or object
    bool m_hasKey = false;
    bool m_hasFailed = false;
};

}

#pragma once

#include <QtGlobal>

#include <compare>

namespace velm
{

// A number of bytes; a strong type so that it is never taken for a count.
struct Bytes {
    qint64 count = 0;

    constexpr auto operator<=>(const Bytes &) const = default;
};

constexpr Bytes mebibytes(qint64 n) { return {n * 1024 * 1024}; }

}

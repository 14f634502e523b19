#pragma once

#include <QByteArray>
#include <QStringList>

namespace velm
{

// Lists of addresses as programs hand files to each other (RFC 2483): one a line, lines that begin with "#"
// are comments. A first line "copy" or "cut", as GNOME's file manager writes it, is no address and passed
// over.

// The absolute paths of the local files in the list, in its order. Whatever else is in it is left out: other
// schemes and hosts, relative paths, wrong percent signs, names that no file can have.
QStringList localPaths(const QByteArray &uriList);

QByteArray uriList(const QStringList &paths);

}

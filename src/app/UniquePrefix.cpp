#include "app/UniquePrefix.h"

namespace velm
{

Result<QString> uniquePrefix(const QString &prefix, const QStringList &ids, const QString &what)
{
    QStringList found;
    for (const QString &id : ids) {
        if (prefix.isEmpty() || !id.startsWith(prefix, Qt::CaseInsensitive))
            continue;
        if (id.size() == prefix.size())
            return id;
        found.append(id);
    }
    if (found.size() == 1)
        return found.first();
    if (found.isEmpty())
        return Refusal{QStringLiteral("no %1 begins with \"%2\"").arg(what, prefix)};
    return Refusal{QStringLiteral("several %1s begin with \"%2\"").arg(what, prefix)};
}

}

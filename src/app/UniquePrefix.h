#pragma once

#include "platform/Result.h"

#include <QStringList>

namespace velm
{

// The one id that begins with the prefix, upper or lower case; the whole id always names itself. `what` is
// the thing's name for the sentence: no clip begins with "3F", several clips begin with "3F".
Result<QString> uniquePrefix(const QString &prefix, const QStringList &ids, const QString &what);

}

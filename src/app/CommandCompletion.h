#pragma once

#include "app/Command.h"

namespace velm
{

// What the shells need to complete nouns, verbs, options, fixed words and paths.
QString bashCompletion(const QList<Command> &commands);
QString zshCompletion(const QList<Command> &commands);
QString fishCompletion(const QList<Command> &commands);

}

#pragma once

#include <QIcon>

namespace velm
{

// The program's mark as a one-coloured template: a screen with an island at its top edge.
QIcon menuBarIcon();

}

#pragma once

#include "clipboard/ClipKind.h"

#include <QStringView>

namespace velm
{

// What a copied text is: a colour, a link (or an e-mail address), code, or just text. Takes time in
// proportion to the text, whatever it holds.
ClipKind classifyText(QStringView text);

}

#pragma once

#include <QString>

namespace velm
{

// Draws the island in every mode and every panel over a sample desktop, with sample data, into PNG files in
// the folder. Needs no display and no bus. Gives the exit status: 1 when a picture cannot be written.
int renderPictures(const QString &folder);

}

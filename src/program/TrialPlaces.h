#pragma once

#include "program/Application.h"

#include <QTemporaryDir>

namespace velm
{

// Places for a start mode that tries the program out: a data folder of its own, emptied first, and a copy
// of the person's preferences, so that nothing of theirs is changed.
class TrialPlaces
{
public:
    explicit TrialPlaces(const QString &dataFolderName);

    const Application::Places &places() const { return m_places; }

private:
    QTemporaryDir m_preferencesFolder;
    Application::Places m_places;
};

}

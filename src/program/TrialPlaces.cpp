#include "program/TrialPlaces.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace velm
{

TrialPlaces::TrialPlaces(const QString &dataFolderName)
    : m_places{dataFolderName, m_preferencesFolder.filePath(QStringLiteral("settings.json"))}
{
    const QDir dataHome(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QDir(dataHome.filePath(dataFolderName)).removeRecursively();
    QFile::copy(PreferencesFile::defaultPath(), m_places.preferencesPath);
}

}

#pragma once

#include "platform/SharedInstance.h"

#include <QObject>
#include <QQmlEngine>

namespace velm
{

class FileManager;
class Haptics;
class PasteKeys;

// What this computer lets Velm do, as the settings say it, and the way to the data folder.
class ThisComputer : public QObject, public SharedInstance<ThisComputer>
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool hasHaptics READ hasHaptics CONSTANT)

public:
    ThisComputer(const PasteKeys &pasteKeys, const Haptics &haptics, FileManager &fileManager,
                 const QString &dataFolder);
    static ThisComputer *create(QQmlEngine *, QJSEngine *);

    // Asked anew each time: the permission may come while Velm runs.
    Q_INVOKABLE bool canPaste() const;

    Q_INVOKABLE void revealDataFolder();

    bool hasHaptics() const;

private:
    const PasteKeys &m_pasteKeys;
    const Haptics &m_haptics;
    FileManager &m_fileManager;
    QString m_dataFolder;
};

}

#include "panels/ThisComputer.h"

#include "app/SharedForQml.h"
#include "platform/files/FileManager.h"
#include "platform/haptics/Haptics.h"
#include "platform/typing/PasteKeys.h"

namespace velm
{

ThisComputer::ThisComputer(const PasteKeys &pasteKeys, const Haptics &haptics, FileManager &fileManager,
                           const QString &dataFolder)
    : m_pasteKeys(pasteKeys), m_haptics(haptics), m_fileManager(fileManager), m_dataFolder(dataFolder)
{}

ThisComputer *ThisComputer::create(QQmlEngine *, QJSEngine *) { return sharedForQml<ThisComputer>(); }

bool ThisComputer::canPaste() const { return m_pasteKeys.isTrusted(); }

bool ThisComputer::hasHaptics() const { return m_haptics.isAvailable(); }

void ThisComputer::revealDataFolder() { m_fileManager.reveal(m_dataFolder); }

}

#pragma once

#include <QQmlExtensionPlugin>

// Makes the QML modules that are linked in known to the engine. Once in a program, which links their
// plug-ins.
Q_IMPORT_QML_PLUGIN(Velm_AppPlugin)
Q_IMPORT_QML_PLUGIN(Velm_IslandPlugin)
Q_IMPORT_QML_PLUGIN(Velm_ClipboardPlugin)
Q_IMPORT_QML_PLUGIN(Velm_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Velm_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(Velm_PanelsPlugin)

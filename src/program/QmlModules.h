#pragma once

class QQmlEngine;

namespace velm
{

class Application;

// Chooses the scene graph, the fonts and the language, and makes the modules that are linked in known. Before
// the first window.
void prepareQml();

// What an engine needs to load a panel: the modules' path and the makers of pictures.
void prepareEngine(QQmlEngine &engine, Application &application);

}

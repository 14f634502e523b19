#pragma once

#include <QJSEngine>

namespace velm
{

// What a QML singleton's `create` gives back: the one that the composition root made, which stays its owner.
template <typename T>
T *sharedForQml()
{
    QJSEngine::setObjectOwnership(&T::shared(), QJSEngine::CppOwnership);
    return &T::shared();
}

}

#pragma once

#include "island/VelmTab.h"

#include <QObject>

namespace velm
{

// The sections' table for QML: VelmTabs.title(VelmTab.Todo).
class VelmTabs : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QList<int> all READ all CONSTANT) // VelmTab values in the rail's order

public:
    explicit VelmTabs(QObject *parent = nullptr) : QObject(parent) {}

    QList<int> all() const;
    Q_INVOKABLE QString rawValue(velm::Sections::VelmTab tab) const { return velm::rawValue(tab); }
    Q_INVOKABLE QString title(velm::Sections::VelmTab tab) const { return velm::title(tab); }
    Q_INVOKABLE QString icon(velm::Sections::VelmTab tab) const { return velm::icon(tab); }
    Q_INVOKABLE QString blurb(velm::Sections::VelmTab tab) const { return velm::blurb(tab); }
    Q_INVOKABLE velm::Tints::Tint accent(velm::Sections::VelmTab tab) const { return velm::accent(tab); }
};

}

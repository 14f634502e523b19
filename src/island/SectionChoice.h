#pragma once

#include "island/VelmTab.h"

#include <QObject>

namespace velm
{

class Settings;

// Which section the panel shows, out of those that are not switched off. It is stored for the next time.
class SectionChoice : public QObject
{
    Q_OBJECT

public:
    explicit SectionChoice(Settings &settings);

    // The one that was stored, or the first visible one in its place.
    VelmTab current() const { return m_current; }

    // In the rail's order; empty while all are switched off.
    QList<VelmTab> visible() const;

    void choose(VelmTab tab);

Q_SIGNALS:
    void currentChanged();
    void visibleChanged();

private:
    void reconcile();
    void followStored();
    void setCurrent(VelmTab tab);

    Settings &m_settings;
    VelmTab m_current;
};

}

#include "island/VelmTabs.h"

namespace velm
{

QList<int> VelmTabs::all() const
{
    QList<int> values;
    for (const VelmTab tab : allTabs())
        values.append(static_cast<int>(tab));
    return values;
}

}

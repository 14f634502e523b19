#pragma once

#include "platform/screens/Screens.h"

class QScreen;

namespace velm
{

// The screens as the toolkit knows them. What changes in one go is told once.
class QtScreens final : public Screens
{
public:
    QtScreens();

    QList<ScreenInfo> all() const override;

private:
    void follow(QScreen *screen);
    void lookSoon();
    void look();

    QList<ScreenInfo> m_told;
    bool m_willLook = false;
};

}

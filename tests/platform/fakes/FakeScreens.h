#pragma once

#include "platform/screens/Screens.h"

namespace velm
{

// Screens that the test plugs in and out.
class FakeScreens final : public Screens
{
public:
    explicit FakeScreens(QList<ScreenInfo> screens = {laptop()}) : m_screens(std::move(screens)) {}

    QList<ScreenInfo> all() const override { return m_screens; }

    void set(QList<ScreenInfo> screens)
    {
        m_screens = std::move(screens);
        Q_EMIT changed();
    }

    // A built-in screen without a housing, below a panel of 32 points.
    static ScreenInfo laptop()
    {
        return {.connector = QStringLiteral("eDP-1"),
                .geometry = QRect(0, 0, 1280, 800),
                .topInset = 32,
                .isPrimary = true,
                .housing = {}};
    }

    // A larger one to the right of it.
    static ScreenInfo external()
    {
        return {.connector = QStringLiteral("HDMI-A-1"),
                .geometry = QRect(1280, 0, 1920, 1080),
                .topInset = 0,
                .isPrimary = false,
                .housing = {}};
    }

private:
    QList<ScreenInfo> m_screens;
};

}

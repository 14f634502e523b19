#pragma once

#include "platform/overlay/Overlay.h"

#include <optional>

namespace velm
{

// Remembers what the display system would have been told.
class FakeOverlay final : public Overlay
{
public:
    void attach(QWindow *window) override { attached = window; }
    void present(const ScreenInfo &screen) override
    {
        presentedOn = screen;
        ++presentations;
    }
    void setInputRegion(const QRegion &region) override { inputRegion = region; }
    void setPaintedShape(const QRegion &region) override { paintedShape = region; }
    void takeKeyboard() override { hasKeyboard = true; }
    void returnKeyboard() override
    {
        returns += hasKeyboard ? 1 : 0;
        hasKeyboard = false;
    }
    bool isBlending() const override { return m_isBlending; }
    OverlayAbilities abilities() const override { return able; }

    // A compositor comes or goes.
    void setBlending(bool isBlending)
    {
        m_isBlending = isBlending;
        Q_EMIT blendingChanged();
    }

    // The person clicks into another window.
    void loseKeyboard()
    {
        hasKeyboard = false;
        Q_EMIT keyboardLost();
    }

    QWindow *attached = nullptr;
    std::optional<ScreenInfo> presentedOn;
    int presentations = 0;
    QRegion inputRegion;
    QRegion paintedShape;
    bool hasKeyboard = false;
    int returns = 0; // of a keyboard that was held
    OverlayAbilities able{.clickThrough = true, .keyboardOnDemand = true, .allWorkspaces = true};

private:
    bool m_isBlending = true;
};

}

#pragma once

#include "platform/overlay/Overlay.h"

#include <QPointer>
#include <QWindow>

namespace velm
{

// Where the display system has nothing to offer: an ordinary window in the right place.
class PlainOverlay final : public Overlay
{
public:
    void attach(QWindow *window) override { m_window = window; }
    void present(const ScreenInfo &screen) override
    {
        if (!m_window)
            return;
        const QRect area = screen.geometry;
        m_window->setPosition(area.left() + (area.width() - m_window->width()) / 2, area.top());
        m_window->show();
    }
    void setInputRegion(const QRegion &) override {}
    void setPaintedShape(const QRegion &) override {}
    void takeKeyboard() override
    {
        if (m_window)
            m_window->requestActivate();
    }
    void returnKeyboard() override {}
    bool isBlending() const override { return true; }
    OverlayAbilities abilities() const override { return {}; }

private:
    QPointer<QWindow> m_window;
};

}

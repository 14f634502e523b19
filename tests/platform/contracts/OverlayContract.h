#pragma once

#include "platform/overlay/Overlay.h"

#include <QTest>

#include <functional>
#include <memory>

namespace velm
{

// A desktop with the overlay's window and another one, as the contract's tests need it.
class OverlayWorld
{
public:
    virtual ~OverlayWorld() = default;
    virtual Overlay &overlay() = 0;
    virtual void show() = 0;
    virtual bool hasKeyboard() = 0;
    virtual void personClicksElsewhere() = 0;
    virtual void setCompositor(bool runs) = 0;
    virtual bool waitFor(const std::function<bool()> &condition) = 0;
};

// What holds of every overlay.
class OverlayContract : public QObject
{
    Q_OBJECT

protected:
    virtual std::unique_ptr<OverlayWorld> makeWorld() = 0;

private Q_SLOTS:
    void being_shown_does_not_take_the_keyboard();
    void the_keyboard_is_taken_and_given_back();
    void giving_back_what_was_not_taken_does_nothing();
    void a_keyboard_taken_by_another_window_is_told();
    void a_compositor_that_comes_or_goes_is_told();
};

}

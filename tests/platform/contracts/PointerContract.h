#pragma once

#include "platform/pointer/Pointer.h"

#include <QTest>

#include <functional>
#include <memory>

namespace velm
{

// A desktop whose pointer a person moves, as the contract's tests need it.
class PointerWorld
{
public:
    enum class Button { Left = 1, Wheel = 4, Right = 3 };

    virtual ~PointerWorld() = default;
    virtual Pointer &pointer() = 0;
    virtual void moveBy(QPoint distance) = 0;
    virtual void press(Button button) = 0;
    virtual void release(Button button) = 0;
    virtual bool waitFor(const std::function<bool()> &condition) = 0;
};

// What holds of every pointer.
class PointerContract : public QObject
{
    Q_OBJECT

protected:
    virtual std::unique_ptr<PointerWorld> makeWorld() = 0;

private Q_SLOTS:
    void a_movement_is_told_while_followed_only();
    void the_last_notice_is_where_it_came_to_rest();
    void presses_and_releases_carry_their_place();
};

}

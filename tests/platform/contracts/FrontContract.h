#pragma once

#include "platform/front/FrontProgram.h"

#include <QTest>

#include <functional>
#include <memory>

namespace velm
{

// A desktop on which a person works in one program after the other, as the contract's tests need it.
class FrontWorld
{
public:
    virtual ~FrontWorld() = default;
    virtual FrontProgram &front() = 0;
    virtual void workIn(const ProgramInfo &program) = 0;
    virtual void workInNothing() = 0;
    virtual bool waitFor(const std::function<bool()> &condition) = 0;
};

// What holds of every back-end that tells of the front program.
class FrontContract : public QObject
{
    Q_OBJECT

protected:
    virtual std::unique_ptr<FrontWorld> makeWorld() = 0;

private Q_SLOTS:
    void no_active_window_is_no_program();
    void the_program_of_the_active_window_is_told();
};

}

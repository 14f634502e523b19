#pragma once

#include <QString>

#include <optional>

namespace velm
{

// A program as the person sees it.
struct ProgramInfo {
    QString name;       // from its desktop entry, else its window's class
    QString identifier; // desktop entry's id without ".desktop", else the window's class
    bool isTerminal = false;

    bool operator==(const ProgramInfo &) const = default;
};

// Which program the person is working in.
class FrontProgram
{
public:
    virtual ~FrontProgram() = default;

    // Absent when no window is active or the display system does not tell.
    virtual std::optional<ProgramInfo> current() const = 0;
};

}

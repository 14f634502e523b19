#pragma once

#include <QString>

namespace velm
{

enum class PasteChord { ControlV, ControlShiftV };

// Presses the paste keys in the program that has the keyboard, as if the person had.
class PasteKeys
{
public:
    virtual ~PasteKeys() = default;

    // Whether this session lets a program press keys.
    virtual bool isTrusted() const = 0;

    // Asks the person to allow it, where there is somebody to ask.
    virtual void askForTrust() = 0;

    // Key down, then key up; a key that the keyboard map does not have is skipped.
    virtual void press(PasteChord chord) = 0;
};

}

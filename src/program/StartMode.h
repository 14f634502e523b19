#pragma once

#include <QStringList>

namespace velm
{

enum class StartMode { Resident, SelfTest, Render, Version, Help, Command };

// What the words after the program's name ask for.
struct StartRequest {
    StartMode mode = StartMode::Resident;
    QString folder = {};    // of Render
    int scale = 1;          // of Render
    QStringList words = {}; // of Command

    bool operator==(const StartRequest &) const = default;
};

// Looks at the switches before anything else; "--render" without a folder counts as no switch.
StartRequest startRequest(QStringList words);

}

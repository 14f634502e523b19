#pragma once

namespace velm
{

// Checks the program's own rules on its own code, in a data folder of its own and without a display. Prints
// a line per failure and a closing "N passed, N failed"; gives the exit status, 0 when none failed.
int runSelfTest();

}

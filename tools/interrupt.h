#pragma once

#include "tools/CToolError.h"

namespace tool {

/// Ctrl-C and SIGTERM as a request to stop, which a command notices at its next step. A second one
/// ends the process at once.

/// To be called once, first of all. A signal that the starter of the tool ignores stays ignored.
void watchInterrupts();
bool isInterrupted();
/// eInterrupted or eTerminated after a request to stop, else eDone.
EExit interruptExit();
/// Throws CToolError with interruptExit after a request to stop.
void checkInterrupt();

} // namespace tool

// What a program says when it crashes or hangs, before it ends.
#pragma once

// From here on a fault of our own code, or a use of an object that is gone, ends the program at once with a report on
// the standard output. The system would swallow some of them: those in what it calls itself.
void ReportCrashes();

// Ends the program, with a report of what it shows, when it has not been called again within the limit.
void IsAlive();

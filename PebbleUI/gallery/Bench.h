#pragma once

// Times, printed to standard output: the first frame of a window with 300 controls as a multiple of an
// empty window's, and how many frames a window draws while nothing happens. Returns the program's exit
// code: 1 when a window did not come up, a ratio is above 4 or an idle window draws.
int runBench();

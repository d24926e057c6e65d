#pragma once

/// The window in this process with the picture of the last argument: what the column of filters and its
/// panels cost the thread of the interface. 0 when every figure is within its bound.
int measurePanel(int argc, char **argv);

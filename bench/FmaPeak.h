#pragma once

/// Multiply-adds in 32-bit floats that one core does in a second of its time, with the widest vector
/// unit of the machine and nothing but registers: what a convolution can be compared with.
double fmaPeakPerCore();

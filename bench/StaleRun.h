#pragma once

/// The longest time, in milliseconds, that a run of a 24-megapixel picture takes to answer after it was
/// cancelled at several moments; -1 when one did not answer as cancelled.
double staleRunMs();

#pragma once

/// How runs of a 24-megapixel picture end that are cancelled at several moments.
struct StaleRuns {
    double longest = -1; ///< milliseconds until the answer; -1 when a run did not answer as cancelled
    double computed =
        0; ///< processor milliseconds of all threads meanwhile, at most: what no other load lengthens
};

StaleRuns cancelStaleRuns();

#pragma once

/// What the system says about the terminal behind standard error.
namespace terminal {

bool onStandardError();

/// Character cells in a row; 80 where the system does not say.
int columns();

} // namespace terminal

#pragma once

class TIntegrations;
class TIntercom;

/// Settles with the user's other instances what this process is. False when another one took over what was
/// to be opened and this process is to end.
bool settleInstanceRole(const TIntegrations &integrations, TIntercom &intercom);

/// Registers the restart after a crash where this process is the one that serves.
void registerRestartHandler(const TIntegrations &integrations, const TIntercom &intercom);

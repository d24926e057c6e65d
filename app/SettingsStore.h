#pragma once

class QSettings;

/// Says in the log when the store can't be read or is damaged; what could be read is kept, the rest has its
/// defaults. A damaged file is kept beside the store as "<name>.damaged", because the next change overwrites
/// it.
void reportSettingsStore(const QSettings &settings);

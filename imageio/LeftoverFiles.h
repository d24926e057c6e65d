#pragma once

#include <QString>

namespace imageio {

/// What the names of this process's temporary files begin with: hidden, and naming host and process.
QString temporaryPrefix();

/// On the first call for a folder, removes the temporary files that processes of this host left in `folder`
/// when they were killed. Those of living processes and of other hosts stay, and so does everything else.
void removeLeftovers(const QString &folder);

} // namespace imageio

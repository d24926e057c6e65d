#include "app/platform/System.h"

#include <QByteArray>
#include <QFileInfo>

#include <mach-o/dyld.h>

QString System::executablePath() {
    uint32_t size = 0;
    _NSGetExecutablePath(nullptr, &size);
    QByteArray path(qsizetype(size), '\0');
    if (_NSGetExecutablePath(path.data(), &size) != 0)
        return {};
    return QFileInfo(QString::fromUtf8(path.constData())).canonicalFilePath();
}

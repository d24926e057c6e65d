#include "app/platform/System.h"

#include <QFile>

QString System::executablePath() {
    return QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
}

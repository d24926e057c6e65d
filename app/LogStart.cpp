#include "app/LogStart.h"

#include "app/Directories.h"
#include "app/TLogger.h"

#include <QDebug>
#include <QLoggingCategory>

#include <clocale>

QString startLog(bool plainConsole, int consoleLevel) {
    std::setlocale(LC_ALL, "");
    qputenv("QT_LOGGING_RULES", "qt.qml.binding.removal.info=true");
    const QString directory = Directories::logDirectory(Directories::Environment::ofProcess());

    // What is logged before the handler is set goes to the console as it is, so a console that
    // asked for less is spared it here.
    QLoggingCategory *category = QLoggingCategory::defaultCategory();
    const bool wanted = category->isInfoEnabled();
    category->setEnabled(QtInfoMsg, wanted && !(plainConsole && consoleLevel > 1));
    TLogger::initialize(directory, consoleLevel, plainConsole);
    category->setEnabled(QtInfoMsg, wanted);

    qInstallMessageHandler(&TLogger::handleMessage);
    qInfo().noquote() << "Log directory:" << directory;
    return directory;
}

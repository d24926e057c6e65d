#include "app/Composition.h"
#include "app/CrashReporter.h"
#include "app/Directories.h"
#include "app/LogStart.h"
#include "app/SessionList.h"
#include "app/SettingsStore.h"
#include "app/TLogger.h"
#include "app/platform/System.h"
#include "app/studio/InstanceRole.h"
#include "app/studio/Interface.h"
#include "app/studio/InterfaceFonts.h"
#include "frontends/PreferenceTable.h"
#include "host/TIntegrations.h"
#include "host/TIntercom.h"
#include "system/Identity.h"

#include <QApplication>
#include <QDebug>
#include <QQuickWindow>
#include <QSettings>
#include <QSurfaceFormat>
#include <QtQml/QQmlExtensionPlugin>

#include <memory>

Q_IMPORT_QML_PLUGIN(PebbleUIPlugin)
Q_IMPORT_QML_PLUGIN(ImageEnhancePlugin)

using namespace Qt::StringLiterals;

namespace {

QStringList rawArguments(int argc, char **argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

void useOpenGl() {
    QSurfaceFormat format;
    format.setSwapInterval(0);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setSwapBehavior(QSurfaceFormat::DoubleBuffer);
    format.setRedBufferSize(8);
    format.setGreenBufferSize(8);
    format.setBlueBufferSize(8);
    format.setAlphaBufferSize(8);
    format.setDepthBufferSize(8);
    format.setStencilBufferSize(0);
    format.setSamples(0);
    QSurfaceFormat::setDefaultFormat(format);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    qInfo() << "Using Graphics API Index" << int(QQuickWindow::graphicsApi());
}

/// What every document relies on, before the first one is loaded.
void prepareInterface() {
    setInterfaceFont();
    setInterfacePalette();
    qInfo() << "Initializing QML engine";
    if (storedPreference(QSettings(), u"developerMode").toBool())
        qInfo() << "Developer mode is enabled!";
    joinBackends();
}

int run(int argc, char **argv, const QString &logDirectory, const Directories::Environment &environment,
        const QStringList &recovered) {
    QApplication application(argc, argv);
    TIntegrations integrations(QCoreApplication::arguments() + recovered);
    auto intercom = std::make_unique<TIntercom>(&application);
    QObject::connect(intercom.get(), &TIntercom::mergeInstance, &integrations, &TIntegrations::mergeInstance);
    if (!settleInstanceRole(integrations, *intercom)) {
        integrations.cleanup();
        return 0;
    }
    integrations.setup(&application, intercom.get());
    useOpenGl();
    registerRestartHandler(integrations, *intercom);
    Identity::setOnApplication();

    prepareInterface();
    Interface ui(application, integrations, *intercom, Directories::installRoot(environment), logDirectory);
    const int result = QApplication::exec();
    // What is open is written down while the interface still exists: its end may go wrong.
    ui.session().saveFileList();
    integrations.cleanup();
    qInfo() << "Exiting app:" << result;
    intercom.reset();
    return result;
}

} // namespace

// The window's entry point. "--help", "--log", "-v" and "--verbose" belong to the console program and change
// nothing here; every other argument goes to TIntegrations.
int main(int argc, char **argv) {
    const QStringList arguments = rawArguments(argc, argv);
    const bool recover = arguments.contains(u"--recover"_s);
    System::setConsoleUtf8();
    const auto environment = Directories::Environment::ofProcess();
    const QString logDirectory = startLog(false, 0);

    const QSettings settings(Identity::organization(), Identity::productName());
    reportSettingsStore(settings);
    if (isCrashReporterBypassed(qgetenv("ORVANE_BYPASS_CRASHPAD"), [&settings] {
            return storedPreference(settings, u"allowEventTracking").toBool();
        }))
        qInfo() << "Bypassing crashpad initialization";
    else
        startCrashReporter(logDirectory, QString::fromLocal8Bit(argv[0]));

    const QStringList recovered = recover ? readSessionList(logDirectory) : QStringList();
    qInfo().noquote() << "Starting" << Identity::productName() << Identity::version();
    const int result = run(argc, argv, logDirectory, environment, recovered);
    TLogger::shutdown();
    return result;
}

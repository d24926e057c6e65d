#include "app/AppState.h"
#include "app/Composition.h"
#include "app/CrashReporter.h"
#include "app/Directories.h"
#include "app/LogStart.h"
#include "app/SessionList.h"
#include "app/SettingsStore.h"
#include "app/TLogger.h"
#include "app/platform/System.h"
#include "app/studio/GuiWatch.h"
#include "app/studio/InstanceRole.h"
#include "app/studio/InterfaceFonts.h"
#include "frontends/PreferenceTable.h"
#include "frontends/TMathUtils.h"
#include "host/TIntegrations.h"
#include "host/TIntercom.h"
#include "items/WindowsThemeListener.h"
#include "presets/TFilterGenerator.h"
#include "presets/TFormat.h"
#include "system/AppContext.h"
#include "system/Identity.h"

#include <QApplication>
#include <QDebug>
#include <QQmlApplicationEngine>
#include <QQmlContext>
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

/// The interface, from its font to the end of the event loop.
int runInterface(QApplication &application, TIntegrations &integrations, TIntercom &intercom,
                 const Directories::Surroundings &surroundings, const QString &logDirectory,
                 AppState &appState) {
    setInterfaceFont();
    setInterfacePalette();
    qInfo() << "Initializing QML engine";
    if (storedPreference(QSettings(), u"developerMode").toBool())
        qInfo() << "Developer mode is enabled!";

    const QString installRoot = Directories::installRoot(surroundings);
    AppContext appContext(Directories::modelDirectory(installRoot), logDirectory);
    joinBackends();
    TFormat format;
    TMathUtils mathUtils;
    QQmlApplicationEngine engine;
    engine.addImportPath(u":/"_s);
    engine.addImportPath(u":/PebbleUI"_s);

    QQmlContext *context = engine.rootContext();
    context->setContextProperty(u"appContext"_s, &appContext);
    context->setContextProperty(u"appState"_s, &appState);
    context->setContextProperty(u"tIntegrations"_s, &integrations);
    context->setContextProperty(u"tIntercom"_s, &intercom);
    context->setContextProperty(u"TFormat"_s, &format);
    context->setContextProperty(u"TMathUtils"_s, &mathUtils);
    WindowsThemeListener themeListener;
    context->setContextProperty(u"themeListener"_s, &themeListener);
    const QString filterData = Directories::filterDataDirectory(installRoot);
    TFilterGenerator filterGenerator;
    context->setContextProperty(u"filterGenerator"_s, &filterGenerator);
    filterGenerator.load(filterData + u"/likely_f_sel_combs.json"_s);

    const QUrl main(u"qrc:/imageenhance/main.qml"_s);
    QObject::connect(
        &engine, &QQmlApplicationEngine::objectCreated, &application,
        [main](const QObject *object, const QUrl &url) {
            if (!object && url == main)
                QCoreApplication::exit(-1);
        },
        Qt::QueuedConnection);
    qInfo() << "QML engine initialized";
    engine.load(main);
    qInfo() << "QML engine loaded";
    const auto watch = GuiWatch::startIfAsked(engine.rootObjects().value(0));
    return QApplication::exec();
}

int run(int argc, char **argv, const QString &logDirectory, const Directories::Surroundings &surroundings,
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

    AppState appState(logDirectory, sessionListName());
    const int result =
        runInterface(application, integrations, *intercom, surroundings, logDirectory, appState);
    appState.saveFileList();
    integrations.cleanup();
    qInfo() << "Exiting app:" << result;
    return result;
}

} // namespace

// The window's entry. "--help", "--log", "-v" and "--verbose" belong to the console program and change
// nothing here; every other word goes to TIntegrations.
int main(int argc, char **argv) {
    const QStringList arguments = rawArguments(argc, argv);
    const bool recover = arguments.contains(u"--recover"_s);
    System::setConsoleUtf8();
    const auto surroundings = Directories::Surroundings::ofProcess();
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
    const int result = run(argc, argv, logDirectory, surroundings, recovered);
    TLogger::shutdown();
    return result;
}

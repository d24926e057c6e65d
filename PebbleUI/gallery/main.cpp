#include "Bench.h"
#include "Picture.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTextStream>
#include <QtPlugin>

Q_IMPORT_PLUGIN(PebbleUIPlugin)

using namespace Qt::StringLiterals;

int main(int argc, char *argv[]) {
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(u"pebble-gallery"_s);
    QGuiApplication::setApplicationVersion(u"1.0"_s);

    QCommandLineParser options;
    options.setApplicationDescription(u"Shows every control of PebbleUI in every state."_s);
    options.addHelpOption();
    const QCommandLineOption dark(u"dark"_s, u"Dark theme (the default)."_s);
    const QCommandLineOption light(u"light"_s, u"Light theme."_s);
    const QCommandLineOption grab(u"grab"_s, u"Write a picture of the window to FILE (PNG) and quit."_s,
                                  u"FILE"_s);
    const QCommandLineOption bench(u"bench"_s, u"Take times instead."_s);
    options.addOptions({dark, light, grab, bench});
    options.process(app);

    if (options.isSet(bench))
        return runBench();

    QQmlApplicationEngine engine;
    engine.addImportPath(u":/PebbleUI"_s);
    engine.setInitialProperties({{u"dark"_s, !options.isSet(light)}});
    engine.loadFromModule("PebbleGallery", "GalleryWindow");
    auto *window =
        engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(engine.rootObjects().first());
    if (!window)
        return 1;
    window->requestActivate();
    if (!options.isSet(grab))
        return QGuiApplication::exec();

    const QString error = savePicture(*window, options.value(grab));
    if (error.isEmpty())
        return 0;
    QTextStream(stderr) << error << '\n';
    return 1;
}

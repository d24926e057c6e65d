#include "app/studio/Interface.h"

#include "app/Directories.h"
#include "app/SessionList.h"
#include "host/TIntegrations.h"
#include "host/TIntercom.h"

#include <QCoreApplication>
#include <QDebug>
#include <QQmlContext>

using namespace Qt::StringLiterals;

Interface::Interface(QCoreApplication &application, TIntegrations &integrations, TIntercom &intercom,
                     const QString &installRoot, const QString &logDirectory)
    : m_context(Directories::modelDirectory(installRoot), logDirectory)
    , m_session(logDirectory, sessionListName()) {
    m_engine.addImportPath(u":/"_s);
    m_engine.addImportPath(u":/PebbleUI"_s);

    QQmlContext *context = m_engine.rootContext();
    context->setContextProperty(u"appContext"_s, &m_context);
    context->setContextProperty(u"appState"_s, &m_session);
    context->setContextProperty(u"tIntegrations"_s, &integrations);
    context->setContextProperty(u"tIntercom"_s, &intercom);
    context->setContextProperty(u"TFormat"_s, &m_format);
    context->setContextProperty(u"TMathUtils"_s, &m_mathUtils);
    context->setContextProperty(u"themeListener"_s, &m_themeListener);
    context->setContextProperty(u"filterGenerator"_s, &m_filterGenerator);
    m_filterGenerator.load(Directories::filterDataDirectory(installRoot) + u"/likely_f_sel_combs.json"_s);

    const QUrl main(u"qrc:/imageenhance/main.qml"_s);
    QObject::connect(
        &m_engine, &QQmlApplicationEngine::objectCreated, &application,
        [main](const QObject *object, const QUrl &url) {
            if (!object && url == main)
                QCoreApplication::exit(-1);
        },
        Qt::QueuedConnection);
    qInfo() << "QML engine initialized";
    m_engine.load(main);
    qInfo() << "QML engine loaded";
    m_watch = GuiWatch::startIfAsked(m_engine.rootObjects().value(0));
}

Interface::~Interface() {
    qInfo() << "Closing the QML engine";
}

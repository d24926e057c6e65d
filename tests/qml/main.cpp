#include "app/studio/QmlTypes.h"

#include <QQmlEngine>
#include <QtPlugin>
#include <QtQml/QQmlExtensionPlugin>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(PebbleUIPlugin)
Q_IMPORT_QML_PLUGIN(ImageEnhancePlugin)

class Setup : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable() { registerQmlTypes(); }
    void qmlEngineAvailable(QQmlEngine *engine) {
        registerWindowAgent(*engine);
        engine->addImportPath(QStringLiteral(":/"));
        engine->addImportPath(QStringLiteral(":/PebbleUI"));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(Studio, Setup)

#include "main.moc"

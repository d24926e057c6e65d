#include <QQmlEngine>
#include <QtPlugin>
#include <QtQuickTest>

Q_IMPORT_PLUGIN(PebbleUIPlugin)

class Setup : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine *engine) { engine->addImportPath(QStringLiteral(":/PebbleUI")); }
};

QUICK_TEST_MAIN_WITH_SETUP(PebbleUI, Setup)

#include "main.moc"

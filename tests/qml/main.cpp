#include "FakeBackends.h"

#include "system/Identity.h"

#include <QQmlEngine>
#include <QQmlError>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QtPlugin>
#include <QtQml/QQmlExtensionPlugin>
#include <QtQuickTest>

#include <utility>

Q_IMPORT_QML_PLUGIN(PebbleUIPlugin)
Q_IMPORT_QML_PLUGIN(ImageEnhancePlugin)

// What the documents have logged since begin(), in their order.
class LogLines : public QObject {
    Q_OBJECT

public:
    Q_INVOKABLE void begin() {
        lines().clear();
        s_next = qInstallMessageHandler(&LogLines::take);
    }
    Q_INVOKABLE QStringList end() {
        qInstallMessageHandler(s_next);
        return std::exchange(lines(), {});
    }

private:
    static QStringList &lines() {
        static QStringList taken;
        return taken;
    }
    static void take(QtMsgType, const QMessageLogContext &, const QString &text) { lines().append(text); }
    static inline QtMessageHandler s_next = nullptr;
};

class Setup : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable() {
        // Settings of the tests' own: nobody's are read or written.
        Identity::setOnApplication();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        qmlRegisterType<LogLines>("Testing", 1, 0, "LogLines");
        qmlRegisterType<FakeBackends>("Testing", 1, 0, "FakeBackends");
        FakeBackends::install();
    }
    void qmlEngineAvailable(QQmlEngine *engine) {
        engine->addImportPath(QStringLiteral(":/"));
        // A document that warns fails the test that runs.
        connect(engine, &QQmlEngine::warnings, this, [](const QList<QQmlError> &warnings) {
            for (const QQmlError &warning : warnings)
                QTest::qFail(warning.toString().toUtf8().constData(), __FILE__, __LINE__);
        });
        engine->addImportPath(QStringLiteral(":/PebbleUI"));
    }

private:
    QTemporaryDir m_settings;
};

QUICK_TEST_MAIN_WITH_SETUP(Studio, Setup)

#include "main.moc"

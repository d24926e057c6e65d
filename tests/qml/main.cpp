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

// What the documents have logged since begin(), in their order; and the one script error that a test waits
// for.
class LogLines : public QObject {
    Q_OBJECT

public:
    /// A warning with this text fails no test, once.
    Q_INVOKABLE void expectWarning(const QString &text) { s_expected = text; }
    Q_INVOKABLE bool warningCame() const { return s_expected.isEmpty(); }
    static bool isExpected(const QString &warning) {
        const bool expected = !s_expected.isEmpty() && warning.contains(s_expected);
        if (expected)
            s_expected.clear();
        return expected;
    }
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
    static inline QString s_expected;
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
                if (!LogLines::isExpected(warning.toString()))
                    QTest::qFail(warning.toString().toUtf8().constData(), __FILE__, __LINE__);
        });
        engine->addImportPath(QStringLiteral(":/PebbleUI"));
    }

private:
    QTemporaryDir m_settings;
};

QUICK_TEST_MAIN_WITH_SETUP(Studio, Setup)

#include "main.moc"

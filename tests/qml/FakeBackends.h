#pragma once

#include "frontends/AppContext.h"
#include "host/TIntegrations.h"
#include "host/TIntercom.h"
#include "presets/TFilterGenerator.h"
#include "tests/fakes/FakeEngine.h"
#include "tests/fakes/FakeFiles.h"

#include <QTemporaryDir>
#include <QVariantMap>

/// A host application as a test wants it; without one the window is on its own.
class FakeHost : public TIntegrations {
    Q_OBJECT
    Q_PROPERTY(bool fileSizeEstimationSupported MEMBER m_estimates)
    Q_PROPERTY(QString loadingError MEMBER m_error NOTIFY loadingErrorChanged)
public:
    FakeHost()
        : TIntegrations({QStringLiteral("studio")}) {}

private:
    bool m_estimates = true;
    QString m_error;
};

/// An instance that serves when a test says so, and tells the key that it takes messages by.
class FakeIntercom : public TIntercom {
    Q_OBJECT
    Q_PROPERTY(bool isServer MEMBER m_serves NOTIFY isServerChanged)
    Q_PROPERTY(QString key MEMBER m_key)
public:
    explicit FakeIntercom(const QString &directory)
        : TIntercom(nullptr, directory, nullptr) {}
    Q_INVOKABLE void setExternalEditor(const QString &key) { m_key = key; }

private:
    bool m_serves = false;
    QString m_key;
};

/// For documents under test: scripts the engine and the files below the real front ends, and tells what was
/// asked of them since forget(). The engine is that of the controller made last.
class FakeBackends : public QObject {
    Q_OBJECT
    Q_PROPERTY(TIntegrations *host READ host CONSTANT)
    Q_PROPERTY(TIntercom *intercom READ intercom CONSTANT)
    Q_PROPERTY(AppContext *appContext READ appContext CONSTANT)
public:
    /// Once, before any front end is made.
    static void install();

    TIntegrations *host() { return &m_host; }
    TIntercom *intercom() { return &m_intercom; }
    AppContext *appContext() { return &m_context; }

    /// Work of these kinds ("reads", "runs", "analyses") stays under way from now on, that of others ends.
    Q_INVOKABLE void hold(const QStringList &kinds);
    Q_INVOKABLE void addFile(const QString &path, int width, int height);
    Q_INVOKABLE void failWriting(const QString &path, const QString &why);
    /// One that knows these sequences ("['DENOISE-All', 'UPSCALE-']") by their counts; the caller's.
    Q_INVOKABLE TFilterGenerator *recommender(const QVariantMap &counts);
    /// The answer to analyses from now on.
    Q_INVOKABLE void advise(const QVariantMap &settings);
    /// Analyses from now on report these steps, each when allowSteps() has come to its place in the list, and
    /// find these problems. No steps: they answer at once.
    Q_INVOKABLE void scriptAnalyses(const QStringList &steps, const QVariantMap &problems);
    Q_INVOKABLE void allowSteps(int count);
    /// Runs from now on tell this progress (0 to 1) and stage, and fail if there is an error.
    Q_INVOKABLE void scriptRuns(double progress, const QString &stage, const QString &error);

    /// `{ region, order, params, path, exporting }` each
    Q_INVOKABLE QVariantList runs() const;
    /// `{ uid, regenerateMask, forceFaceDetect }` each
    Q_INVOKABLE QVariantList analyses() const;
    /// `{ uid, settings }` each
    Q_INVOKABLE QVariantList masks() const;
    Q_INVOKABLE QVariantList hovers() const;
    /// `{ path, options }` each
    Q_INVOKABLE QVariantList estimates() const;
    Q_INVOKABLE void forget();

private:
    QTemporaryDir m_folder;
    FakeHost m_host;
    FakeIntercom m_intercom{m_folder.path()};
    AppContext m_context{m_folder.path(), m_folder.filePath(QStringLiteral("Logs"))};
    qsizetype m_estimatesBefore = 0;
};

#pragma once

#include "cli/BatchOptions.h"
#include "cli/BatchOutcome.h"
#include "cli/Interrupt.h"
#include "cli/OutputNaming.h"
#include "cli/Progress.h"
#include "frontends/TEngineController.h"
#include "frontends/TEventTracker.h"
#include "frontends/TImageReader.h"
#include "frontends/TImageWriter.h"
#include "model/TControls.h"

#include <QCoreApplication>
#include <QList>

#include <atomic>
#include <optional>

class AppContext;

/// Processes image files without a window: reads each, asks Autopilot, merges the user's overrides,
/// runs the engine over the whole picture and saves the result. One file at a time is read and
/// processed; the writing of a file overlaps with the next one.
///
/// The driver's state is where the last signal left it. A file that can't be read and a skipped
/// file start no other one, and an engine's failure ends the run: that is how a plain run behaves.
/// With --keep-going every file is brought to exactly one outcome and the run ends by itself.
class CLIApplication : public QObject {
    Q_OBJECT
public:
    /// Owns the process's application object; `argv` must outlive it.
    CLIApplication(int argc, char **argv);

    /// Called once. Gives the process's exit code: -3 after a bad argument or preset, -1 without a file to
    /// process, 130 after Ctrl-C, 1 when files failed under --keep-going, otherwise 0.
    int run(const AppContext &context);

    /// See FileGathering.h and Options.h.
    QStringList gatherFiles(const QStringList &args);
    bool parseOption(const QString &arg, QStringList &rest);
    static void printUsage();

    const BatchOptions &options() const { return m_options; }

Q_SIGNALS:
    void finished();
    void startNext();
    void fileSaved();

public Q_SLOTS:
    void checkFinished();
    void processFiles();
    void loadError();
    void imageReadFinished();
    void autoPilotFinished(const QString &uid, const QVariantMap &settings);
    void engineCanceled();
    void engineError(const QString &msg);
    void engineFinished();
    void imageSaved(const QString &outputPath, qlonglong fileSize);
    void errorSaving(const QString &outputPath, const QString &error);
    void canWrite();

private:
    struct Write {
        QString output; ///< the path that was asked for
        QString input;
        QString written; ///< where the file really lies
    };

    void connectAll();
    void waitForModels(const QString &modelDirectory);
    void startTracking(const AppContext &context);
    void storeLevels(const QString &uid, const QVariantMap &problems);
    void processImage(const QVariantMap &input);
    void savedElsewhere(const QString &outputPath, const QString &writtenPath);
    void saveResult(const std::shared_ptr<ImageData> &image);
    void countFinished();
    void engineFailed(const QString &reason);
    void settleCurrent(const QString &failure = QString());
    void startNextWhenPossible();
    Write takeWrite(const QString &outputPath);
    void interrupt(int exitCode);
    int exitCode();

    int m_argc; ///< the application object keeps a reference to it
    const QStringList m_filterOrder;
    QCoreApplication m_application;
    TImageReader m_reader;
    TImageWriter m_writer;
    TEngineController m_engine;
    TControls m_controls;
    TEventTracker m_tracker;
    BatchOptions m_options;
    const QMap<QString, QString> m_categories; ///< option stem to category
    std::atomic<int> m_finishedCount = 0;      ///< files that are done, saved or failed
    bool m_canWrite = true;
    bool m_nextPending = false; ///< a file waits for the writer before the next may start

    OutputNaming m_naming;
    Interrupt m_interrupt;
    std::optional<int> m_interruptCode;
    Progress m_progress;

    BatchOutcome m_outcome;
    bool m_underWay = false; ///< the current file is being read, analysed or processed
    QList<Write> m_writes;   ///< handed to the writer and not answered, in order
};

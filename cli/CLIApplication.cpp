#include "cli/CLIApplication.h"

#include "cli/AutopilotConfiguration.h"
#include "cli/Console.h"
#include "cli/FileGathering.h"
#include "cli/Options.h"
#include "cli/PresetOption.h"
#include "cli/SettingsMerge.h"
#include "cli/SettingsSummary.h"
#include "cli/Usage.h"
#include "cli/WriterOptions.h"
#include "frontends/AppContext.h"
#include "frontends/PreferenceTable.h"
#include "system/Identity.h"
#include "system/SystemInfo.h"

#include <QDebug>
#include <QEventLoop>
#include <QJsonDocument>
#include <QSettings>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<ImageData> imageOf(const QVariantMap &map) {
    return map.value(u"image"_s).value<std::shared_ptr<ImageData>>();
}

} // namespace

CLIApplication::CLIApplication(int argc, char **argv)
    : m_argc(argc)
    , m_filterOrder(Categories::processingOrder())
    , m_application(m_argc, argv)
    , m_categories(categoryStems()) {
    Identity::setOnApplication();
    connectAll();
}

void CLIApplication::connectAll() {
    connect(&m_reader, &TImageReader::imagedataChanged, this, &CLIApplication::imageReadFinished);
    connect(&m_reader, &TImageReader::errorChanged, this, &CLIApplication::loadError);
    connect(&m_engine, &TEngineController::autoPilotFinished, this, &CLIApplication::autoPilotFinished);
    connect(&m_engine, &TEngineController::autoProblemsUpdated, this, &CLIApplication::storeLevels);
    connect(&m_engine, &TEngineController::canceled, this, &CLIApplication::engineCanceled);
    connect(&m_engine, &TEngineController::procError, this, &CLIApplication::engineError);
    connect(&m_engine, &TEngineController::procResultChanged, this, &CLIApplication::engineFinished);
    connect(&m_writer, &TImageWriter::imageSaved, this, &CLIApplication::imageSaved);
    connect(&m_writer, &TImageWriter::savedElsewhere, this, &CLIApplication::savedElsewhere);
    connect(&m_writer, &TImageWriter::errorSaving, this, &CLIApplication::errorSaving);
    connect(&m_writer, &TImageWriter::canWriteChanged, this, &CLIApplication::canWrite);
    connect(this, &CLIApplication::startNext, this, &CLIApplication::processFiles);
    connect(this, &CLIApplication::fileSaved, this, &CLIApplication::checkFinished);

    connect(&m_engine, &TEngineController::progressChanged, this, [this] {
        if (m_engine.processing())
            m_progress.setStage(m_engine.status(), m_engine.progress());
    });
    connect(&m_interrupt, &Interrupt::interrupted, this, &CLIApplication::interrupt);
}

QStringList CLIApplication::gatherFiles(const QStringList &args) {
    return ::gatherFiles(args, m_categories, m_options);
}

bool CLIApplication::parseOption(const QString &arg, QStringList &rest) {
    return ::parseOption(arg, rest, m_categories, m_options);
}

void CLIApplication::printUsage() {
    ::printUsage();
}

int CLIApplication::run(const AppContext &context) {
    qInfo() << "[CLI] Running CLI";
    const QStringList files = gatherFiles(QCoreApplication::arguments().mid(1));
    if (!m_options.validArguments || !readPreset(context.presetsDirectory(), m_options))
        return -3;

    qInfo() << "[CLI] Initial controls:" << m_controls.currentControls();
    m_engine.setIsCli(true);
    waitForModels(context.modelDirectory());
    if (m_interruptCode)
        return *m_interruptCode;

    const QSettings settings;
    configureAutopilot(settings, m_engine, m_controls);
    m_controls.setModelParamInfo(m_engine.modelParamInfo());

    // The model complains in the log when it is to show one of no images; that helps nobody.
    if (!files.isEmpty())
        m_controls.loadImages(files, false);
    const qsizetype total = m_controls.loadedImages().size();
    if (total == 0) {
        console::errLine(u"No valid image files passed"_s);
        return -1;
    }
    startTracking(context);
    m_naming.setInputs(files);
    for (const QString &path : std::as_const(m_options.missingPaths))
        m_outcome.failed(path, tr("There is no such file or folder"));

    m_controls.setCurrentIndex(-1, false);
    QTimer::singleShot(0, this, &CLIApplication::processFiles);
    connect(this, &CLIApplication::finished, &m_application, &QCoreApplication::quit);
    console::out(settingsSummary(settings, m_options, total));

    m_progress.begin(total);
    QCoreApplication::exec();
    m_progress.end();
    qInfo() << "[CLI] CLI finished";
    return exitCode();
}

// The catalogue is always announced, be it empty; no time limit, since models may be many.
void CLIApplication::waitForModels(const QString &modelDirectory) {
    QEventLoop loop;
    bool announced = false;
    connect(&m_engine, &TEngineController::modelParamInfoChanged, &loop, [&] {
        announced = true;
        loop.quit();
    });
    connect(&m_interrupt, &Interrupt::interrupted, &loop, &QEventLoop::quit);
    m_engine.setModelDirectory(modelDirectory);
    if (!announced)
        loop.exec();
}

void CLIApplication::startTracking(const AppContext &context) {
    m_tracker.setEnabled(storedPreference(QSettings(), u"allowEventTracking").toBool());
    m_tracker.setDev(context.isDev());
    m_tracker.setMachineId(aiutils::SystemInfo::GetInstance(true).getMachineId());
    m_tracker.track(u"CLI Started"_s,
                    {{u"overwrite"_s, m_options.overwrite},
                     {u"recursive"_s, m_options.recursive},
                     {u"files_total"_s, int(m_controls.loadedImages().size())},
                     {u"custom_output_folder"_s, !m_options.outputFolder.isEmpty()},
                     {u"output_format"_s, formatName(m_options.outputFormat)},
                     {u"jpeg_quality"_s, m_options.jpegQuality},
                     {u"png_compression"_s, m_options.pngCompression},
                     {u"tiff_compression"_s, tiffCompressionName(m_options.tiffCompression)},
                     {u"tiff_bitdepth"_s, m_options.tiffBitDepth}});
}

void CLIApplication::processFiles() {
    const qsizetype index = m_controls.currentIndex() + 1;
    const qsizetype total = m_controls.loadedImages().size();
    qInfo() << "[CLI] Processing file" << index + 1 << "/" << total;
    if (index >= total) {
        qInfo() << "[CLI] All images finished, waiting for final save event";
        return;
    }
    m_controls.setCurrentIndex(index, false);
    m_engine.setExporting(true);
    m_engine.setExportIsDng(m_options.outputFormat == OutputFormat::Preserve ||
                            m_options.outputFormat == OutputFormat::Dng);
    qInfo() << "[CLI] Loading file:" << m_controls.currentImage();
    m_underWay = true;
    m_progress.startFile(index + 1, m_controls.currentImage());
    m_progress.setStage(u"Reading"_s);
    m_reader.setFilepath(m_controls.currentImage());
}

void CLIApplication::loadError() {
    const QString error = m_reader.error();
    if (error.isEmpty())
        return;
    qCritical() << "[CLI] Image Reader returned error:" << error;
    console::outLine(u"Skipping image due to error: "_s + m_reader.filepath());
    settleCurrent(error);
}

void CLIApplication::imageReadFinished() {
    qInfo() << "[CLI] Image read finished";
    m_progress.setStage(u"Analysing"_s);
    m_engine.setInputImage(m_reader.imagedata());
    m_engine.setParams(m_controls.currentControls());
    m_engine.autoPilot(m_reader.imagedata(), {});
}

// Comes before autoPilotFinished, and while the analysis goes on with steps that hold no level.
void CLIApplication::storeLevels(const QString &, const QVariantMap &problems) {
    if (problems.contains(Keys::NoiseLevel))
        m_controls.setNoiseLevel(problems.value(Keys::NoiseLevel).toInt());
    if (problems.contains(Keys::BlurLevel))
        m_controls.setBlurLevel(problems.value(Keys::BlurLevel).toInt());
}

void CLIApplication::autoPilotFinished(const QString &uid, const QVariantMap &settings) {
    qInfo() << "[CLI] Autopilot finished:" << uid << settings;
    const QVariantMap input = m_engine.inputImage();
    m_controls.setAutopilotSettings(settings);
    SettingsMerge(m_controls, m_options, m_filterOrder, m_categories).apply(settings);

    if (m_options.showSettings) {
        const QJsonDocument json = QJsonDocument::fromVariant(m_controls.currentControls());
        console::outLine(u"Final Settings for "_s + m_controls.currentImage() + u':');
        console::out(QString::fromUtf8(json.toJson(QJsonDocument::Indented)));
    }
    if (m_options.skipProcessing)
        settleCurrent();
    else
        processImage(input);
}

void CLIApplication::processImage(const QVariantMap &input) {
    const std::shared_ptr<ImageData> image = imageOf(input);
    if (image) {
        m_progress.setStage(u"Processing"_s, 0);
        m_engine.startProc(m_engine.inputImage(), QRect(image->roi()), m_controls.currentControls(),
                           m_controls.filterOrder(), true);
    } else if (m_options.keepGoing) {
        settleCurrent(tr("The file gave no picture"));
    }
}

void CLIApplication::engineCanceled() {
    qCritical() << "[CLI] Engine canceled processing";
    engineFailed(tr("Processing was cancelled"));
}

void CLIApplication::engineError(const QString &msg) {
    qCritical() << "[CLI] Engine returned error:" << msg;
    engineFailed(msg);
}

void CLIApplication::engineFailed(const QString &reason) {
    if (m_options.keepGoing && !m_interruptCode)
        settleCurrent(reason);
    else
        Q_EMIT finished();
}

void CLIApplication::engineFinished() {
    qInfo() << "[CLI] Engine finished processing";
    const QVariantMap result = m_engine.procResult();
    const std::shared_ptr<ImageData> image = imageOf(result);
    if (image) {
        saveResult(image);
        return;
    }
    qCritical() << "Engine returned null image pointer";
    if (m_options.keepGoing) {
        const QString error = result.value(u"error"_s).toString();
        settleCurrent(error.isEmpty() ? tr("Processing gave no picture") : error);
    }
}

void CLIApplication::saveResult(const std::shared_ptr<ImageData> &image) {
    const QString input = m_reader.filepath();
    const OutputKind kind = outputKind(input, m_options.outputFormat);
    const QString output = m_naming.pathFor(input, kind.extension, m_options);
    qInfo() << "[CLI] Input image:" << input;
    qInfo() << "[CLI] Output image:" << output;
    m_underWay = false;
    m_writes.append({output, input, output});
    m_writer.saveImage(image, input, output, m_reader.imagedata(), writerOptions(kind.format, m_options));
    if (m_canWrite) {
        Q_EMIT startNext();
        m_nextPending = false;
    } else {
        m_nextPending = true;
    }
}

void CLIApplication::canWrite() {
    m_canWrite = m_writer.canWrite();
    if (!m_canWrite || !m_nextPending)
        return;
    // A plain run leaves the flag for the next finished file to clear.
    if (m_options.keepGoing)
        m_nextPending = false;
    Q_EMIT startNext();
}

// Comes before imageSaved, where the writer could not use the path that it was given.
void CLIApplication::savedElsewhere(const QString &outputPath, const QString &writtenPath) {
    m_naming.reserve(writtenPath);
    for (Write &write : m_writes) {
        if (write.output == outputPath)
            write.written = writtenPath;
    }
}

void CLIApplication::imageSaved(const QString &outputPath, qlonglong) {
    const Write write = takeWrite(outputPath);
    qInfo() << "[CLI] Saved file:" << write.written;
    m_outcome.succeeded(write.input);
    countFinished();
}

void CLIApplication::errorSaving(const QString &outputPath, const QString &error) {
    console::errLine(u"Could not save file '"_s + outputPath + u"' Error: "_s + error);
    qInfo() << "[CLI] Error saving file:" << outputPath << "Error:" << error;
    m_outcome.failed(takeWrite(outputPath).input, error);
    countFinished();
}

void CLIApplication::countFinished() {
    ++m_finishedCount;
    Q_EMIT fileSaved();
}

void CLIApplication::checkFinished() {
    const qsizetype total = m_controls.loadedImages().size();
    qInfo() << "[CLI]" << total << "images saved";
    if (m_finishedCount < total)
        return;
    m_tracker.track(u"CLI Finished"_s, {});
    qInfo() << "[CLI] Finished processing all images";
    Q_EMIT finished();
}

// The current file ends here, with no picture to save. A plain run starts no other one.
void CLIApplication::settleCurrent(const QString &failure) {
    if (!m_options.keepGoing) {
        countFinished();
        return;
    }
    if (!m_underWay)
        return;
    m_underWay = false;
    if (failure.isEmpty())
        m_outcome.succeeded(m_controls.currentImage());
    else
        m_outcome.failed(m_controls.currentImage(), failure);
    countFinished();
    // Not from within the signal of the reader or engine that is to be used again.
    QTimer::singleShot(0, this, &CLIApplication::startNextWhenPossible);
}

void CLIApplication::startNextWhenPossible() {
    m_nextPending = !m_canWrite;
    if (m_canWrite)
        Q_EMIT startNext();
}

CLIApplication::Write CLIApplication::takeWrite(const QString &outputPath) {
    const auto found = std::find_if(m_writes.cbegin(), m_writes.cend(),
                                    [&](const Write &write) { return write.output == outputPath; });
    if (found == m_writes.cend())
        return {outputPath, {}, outputPath};
    const Write write = *found;
    m_writes.erase(found);
    return write;
}

void CLIApplication::interrupt(int exitCode) {
    m_interruptCode = exitCode;
    m_engine.cancelProc();
    Q_EMIT finished();
}

int CLIApplication::exitCode() {
    if (m_options.keepGoing)
        console::err(m_outcome.report());
    if (m_interruptCode) {
        console::errLine(u"Interrupted."_s);
        return *m_interruptCode;
    }
    return m_options.keepGoing && m_outcome.failures() > 0 ? 1 : 0;
}

#include "FolderTest.h"

#include "cli/CLIApplication.h"
#include "frontends/AppContext.h"
#include "frontends/FileBackends.h"
#include "tests/fakes/FakeEngine.h"
#include "tests/fakes/FakeFiles.h"

#include <QTimer>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

// One run of the driver over small files, with scripted back ends below the real front ends.
class Driver : public FolderTest {
protected:
    Driver() {
        setImageFileBackend(m_files);
        TEngineController::setBackendFactory([this] { return std::move(m_engineToGive); });
    }
    ~Driver() override {
        setImageFileBackend(nullptr);
        TEngineController::setBackendFactory(nullptr);
    }

    /// A file on the disk; readable unless said otherwise.
    QString picture(const QString &name, bool readable = true) {
        if (readable)
            m_files->add(at(name));
        return make(name);
    }
    QStringList pictures(int count) {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths.append(picture(u"p%1.jpg"_s.arg(i, 2, 10, QLatin1Char('0'))));
        return paths;
    }

    /// Gives the exit code. A run that stalls doesn't end by itself and is ended from here.
    int run(const QStringList &arguments, bool stalls = false) {
        std::vector<QByteArray> words = {"orvane-cli"};
        for (const QString &argument : arguments)
            words.push_back(argument.toUtf8());
        std::vector<char *> argv;
        for (QByteArray &word : words)
            argv.push_back(word.data());
        argv.push_back(nullptr);
        CLIApplication application(int(words.size()), argv.data());
        QTimer watchdog;
        bool stalled = false;
        watchdog.callOnTimeout([&stalled] {
            stalled = true;
            QCoreApplication::exit();
        });
        watchdog.start(stalls ? 500 : 20000);
        QTimer::singleShot(m_meanwhileAfter, &application, [this] { m_meanwhile(); });
        const int code = application.run(AppContext(m_folder.path(), at(u"Logs"_s)));
        EXPECT_EQ(stalled, stalls);
        return code;
    }
    QStringList written() const {
        QStringList names;
        for (const WriteRequest &write : m_files->written())
            names.append(QFileInfo(write.outputPath).fileName());
        names.sort();
        return names;
    }
    void failProcessing(std::initializer_list<int> calls) {
        m_engine->onProcess = [calls = std::vector<int>(calls), n = std::make_shared<int>(0)](
                                  const ProcRequest &request, const RunControl &) -> ProcResult {
            if (std::find(calls.begin(), calls.end(), ++*n) != calls.end())
                return {.error = u"Out of memory"_s};
            return {.image = std::const_pointer_cast<ImageData>(request.input.image),
                    .region = request.region};
        };
    }

    std::shared_ptr<FakeFiles> m_files = std::make_shared<FakeFiles>();
    std::unique_ptr<FakeEngine> m_engineToGive = std::make_unique<FakeEngine>();
    FakeEngine *m_engine = m_engineToGive.get(); ///< alive while run() is under way
    int m_meanwhileAfter = 150;
    std::function<void()> m_meanwhile = [] {};
};

} // namespace

TEST_F(Driver, ProcessesEveryFile) {
    QVariantMap denoise = {{u"enabled"_s, true}, {u"strength"_s, 0.5}};
    m_engine->advice.settings = {{u"Denoise"_s, denoise}};
    QStringList orders;
    m_engine->onProcess = [&](const ProcRequest &request, const RunControl &) -> ProcResult {
        orders.append(request.filterOrder);
        EXPECT_TRUE(request.full && request.exporting && request.exportIsDng);
        EXPECT_EQ(request.region, QRect(0, 0, 8, 6));
        return {.image = std::const_pointer_cast<ImageData>(request.input.image), .region = request.region};
    };
    EXPECT_EQ(run(pictures(3)), 0);
    EXPECT_EQ(written(), (QStringList{u"p00-1.jpg"_s, u"p01-1.jpg"_s, u"p02-1.jpg"_s}));
    EXPECT_EQ(m_files->written().at(0).options.value(u"Compression"_s), u"jpeg:95"_s);
    EXPECT_EQ(orders, (QStringList{u"Denoise"_s, u"Denoise"_s, u"Denoise"_s}));
    EXPECT_EQ(m_capture.err(), "");
    EXPECT_TRUE(m_capture.out().starts_with("Change the following settings"));
    for (const char *line :
         {"info [CLI] Running CLI", "info [CLI] Processing file 1 / 3", "info [CLI] Image read finished",
          "info [CLI] Engine finished processing", "info [CLI] Processing file 4 / 3",
          "info [CLI] All images finished, waiting for final save event", "info [CLI] 3 images saved",
          "info [CLI] Finished processing all images", "info [CLI] CLI finished"})
        EXPECT_TRUE(Capture::logged(line)) << line;
}

TEST_F(Driver, TheLogNamesWhereAFileReallyWent) {
    struct Elsewhere : FakeFiles {
        WriteResult write(const WriteRequest &request, const RunControl &control) override {
            WriteResult result = FakeFiles::write(request, control);
            result.outputPath = request.outputPath + u".tif"_s;
            return result;
        }
    };
    m_files = std::make_shared<Elsewhere>();
    setImageFileBackend(m_files);
    EXPECT_EQ(run(pictures(1)), 0);
    EXPECT_EQ(Capture::log().filter(u"[CLI] Saved file:"_s),
              QStringList{u"info [CLI] Saved file: \"%1\""_s.arg(at(u"p00-1.jpg.tif"_s))});
}

TEST_F(Driver, AMissingPathLeavesNothingToDo) {
    EXPECT_EQ(run({picture(u"a.jpg"_s), at(u"gone"_s)}), -1);
    EXPECT_EQ(Capture::log().filter(u"out of range"_s), QStringList()) << "tells a person nothing";
    EXPECT_EQ(m_capture.err(), "[CLI] Invalid file or directory path:" + at(u"gone"_s).toStdString() +
                                   "\nNo valid image files passed\n");
    EXPECT_TRUE(m_files->reads().empty());
}

TEST_F(Driver, OneUnreadableFileEndsWell) {
    const QString first = picture(u"a.jpg"_s, false);
    EXPECT_EQ(run({first}), 0);
    EXPECT_TRUE(m_capture.out().ends_with("Skipping image due to error: " + first.toStdString() + "\n"));
    EXPECT_EQ(Capture::log().filter(u"error [CLI] Image Reader returned error:"_s).size(), 1);
}

// Nothing starts the next file after these two ends of a file's way.
TEST_F(Driver, StallsAfterAnUnreadableOrASkippedFile) {
    const QStringList skipped = pictures(2) + QStringList{u"--skipProcessing"_s};
    const QStringList unreadable = {picture(u"a.jpg"_s, false), picture(u"b.jpg"_s, false)};
    for (const QStringList &arguments : {skipped, unreadable}) {
        const size_t before = m_files->reads().size();
        m_engineToGive = std::make_unique<FakeEngine>();
        run(arguments, true);
        EXPECT_EQ(m_files->reads().size() - before, 1u);
    }
}

TEST_F(Driver, ShowsSettingsWithoutProcessing) {
    const QString path = picture(u"ü\n\"a.jpg"_s);
    EXPECT_EQ(run({path, u"--skipProcessing"_s, u"--showSettings"_s}), 0);
    EXPECT_TRUE(m_files->written().empty());
    const std::string heading = "Final Settings for " + path.toStdString() + ":\n{\n";
    EXPECT_NE(m_capture.out().find(heading), std::string::npos);
    EXPECT_TRUE(m_capture.out().ends_with("\n}\n"));
}

TEST_F(Driver, ShowsTheMeasuredLevels) {
    m_engine->advice.problems = {{u"noise_level"_s, 3}, {u"blur_level"_s, 1}};
    EXPECT_EQ(run({picture(u"a.jpg"_s), u"--skipProcessing"_s, u"--showSettings"_s}), 0);
    for (const char *line : {"\"noise_level\": 3,", "\"blur_level\": 1,"})
        EXPECT_NE(m_capture.out().find(line), std::string::npos) << line;
}

TEST_F(Driver, TakesAPreset) {
    const auto put = [this](const QString &name, const QByteArray &content) {
        make(name);
        QFile file(at(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(content) == content.size());
        return at(name);
    };
    const QByteArray good =
        R"({"filterOrder": ["S"], "controls": {"S": {"category": "Sharpen", "params": {"p": 0.5}}}})";
    put(u"Presets/Mine.json"_s, good);
    put(u"Presets/Torn.json"_s, good.left(40));
    put(u"Presets/Empty.json"_s, R"({"name": "Empty"})");
    const QString elsewhere = put(u"else/Other.json"_s, good);
    const QString path = picture(u"a.jpg"_s);
    const struct {
        QString name;
        int code;
        const char *said;
    } rows[] = {
        {u"Mine"_s, 0, ""},
        {elsewhere, 0, ""},
        {u"Gone"_s, -3,
         "Invalid preset given: Gone\nExpected one of Empty, Mine, Torn, or the path of a .json file\n"},
        {u"Torn"_s, -3, "Invalid preset given: Torn\nThe file is damaged or holds no enhancement: "},
        {u"Empty"_s, -3, "Invalid preset given: Empty\nThe file is damaged or holds no enhancement: "},
        {u"else/gone.json"_s, -3, "Invalid preset given: else/gone.json\n"},
    };
    for (const auto &[name, code, said] : rows) {
        SCOPED_TRACE(name.toStdString());
        const Capture capture;
        m_engineToGive = std::make_unique<FakeEngine>();
        m_engineToGive->models = {{u"Sharpen"_s, QVariantMap{{u"Lens"_s, QVariantMap()}}}};
        QStringList orders;
        m_engineToGive->onProcess = [&](const ProcRequest &request, const RunControl &) -> ProcResult {
            orders.append(request.filterOrder);
            return {.image = std::const_pointer_cast<ImageData>(request.input.image),
                    .region = request.region};
        };
        EXPECT_EQ(run({path, u"--preset"_s, name}), code);
        EXPECT_TRUE(capture.err().starts_with(said)) << capture.err();
        EXPECT_EQ(orders, code == 0 ? QStringList{u"Sharpen"_s} : QStringList());
    }
}

TEST_F(Driver, WaitsForAFullWriter) {
    m_files->writeHold.close();
    size_t readMeanwhile = 0;
    m_meanwhileAfter = 400;
    m_meanwhile = [&] {
        readMeanwhile = m_files->reads().size();
        m_files->writeHold.open();
    };
    EXPECT_EQ(run(pictures(6)), 0);
    EXPECT_EQ(readMeanwhile, 2u) << "as many as the writer takes";
    EXPECT_EQ(written().size(), 6);
}

TEST_F(Driver, AnEngineErrorEndsThePlainRun) {
    failProcessing({3});
    EXPECT_EQ(run(pictures(10)), 0);
    EXPECT_EQ(m_files->reads().size(), 3u);
    EXPECT_EQ(written().size(), 2);
    EXPECT_TRUE(Capture::logged("error [CLI] Engine returned error: \"Out of memory\""));
}

TEST_F(Driver, KeepGoingBringsEveryFileToOneOutcome) {
    failProcessing({2, 5});
    QStringList files = pictures(6);
    files.insert(1, picture(u"torn.jpg"_s, false));
    files.insert(2, picture(u"torn2.jpg"_s, false));
    m_files->failWriting(at(u"p05-1.jpg"_s), u"Disk full"_s);
    EXPECT_EQ(run(files + QStringList{at(u"gone"_s), u"--keep-going"_s}), 1);
    EXPECT_EQ(written(), (QStringList{u"p00-1.jpg"_s, u"p02-1.jpg"_s, u"p03-1.jpg"_s}));
    const QString folder = m_folder.path();
    const QString report = u"6 of 9 files failed:\n"
                           "    %1/gone: There is no such file or folder\n"
                           "    %1/torn.jpg: Cannot read %1/torn.jpg\n"
                           "    %1/torn2.jpg: Cannot read %1/torn2.jpg\n"
                           "    %1/p01.jpg: Out of memory\n"
                           "    %1/p04.jpg: Out of memory\n"
                           "    %1/p05.jpg: Disk full\n"_s.arg(folder);
    EXPECT_TRUE(m_capture.err().ends_with(report.toStdString())) << m_capture.err();
}

TEST_F(Driver, KeepGoingPassesSkippedFiles) {
    EXPECT_EQ(run(pictures(3) + QStringList{u"--keep-going"_s, u"--skipProcessing"_s}), 0);
    EXPECT_EQ(m_files->reads().size(), 3u);
}

TEST_F(Driver, CtrlCStopsCleanly) {
    m_engine->processHold.close();
    m_meanwhile = [] { std::raise(SIGINT); };
    EXPECT_EQ(run(pictures(2)), 130);
    EXPECT_TRUE(m_files->written().empty());
    EXPECT_EQ(m_capture.err(), "Interrupted.\n");
}

TEST_F(Driver, CtrlCEndsAStalledRunAndKeepsWhatIsBeingSaved) {
    m_files->writeHold.close();
    m_meanwhile = [this] {
        std::raise(SIGINT);
        m_files->writeHold.open();
    };
    EXPECT_EQ(run(pictures(1)), 130);
    EXPECT_EQ(written().size(), 1);
}

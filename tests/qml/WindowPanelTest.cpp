#include "WindowRun.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRect>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Where things are in a window that fills the screen of the tests, 1600 x 1200. It has no title of the
// system's: its own bars take 80 at the top, that of the zoom 48 at the bottom; the right panel is 272 wide,
// an open filter's panel 251.
constexpr QRect Window(0, 0, 1600, 1200);
constexpr int PanelLeft = 1600 - 272;
constexpr int RefineLeft = PanelLeft - 251;
constexpr QRect View(0, 80, PanelLeft, 1200 - 48 - 80);
// Bottom left, over the picture: what the engine is doing.
constexpr int StatusHeight = 48;
// The navigator (150) and the bar of "Add enhancements" (48) are over the rows, whose lines are 1.
constexpr QPoint row(int index) {
    return {PanelLeft + 100, 80 + 150 + 48 + 24 + 49 * index};
}
// The first slider of "Denoise": over it are the header, the choice of models and its own label.
constexpr QPoint strength(int x) {
    return {RefineLeft + x, 237};
}
constexpr QPoint SavePreset(PanelLeft + 136, 1113);

/// How far apart the two are at most, in levels of a channel.
int difference(const QImage &one, const QImage &other) {
    if (one.size() != other.size())
        return 256;
    int most = 0;
    for (int y = 0; y < one.height(); ++y) {
        const auto *a = reinterpret_cast<const QRgb *>(one.constScanLine(y));
        const auto *b = reinterpret_cast<const QRgb *>(other.constScanLine(y));
        for (int x = 0; x < one.width(); ++x)
            most = std::max({most, qAbs(qRed(a[x]) - qRed(b[x])), qAbs(qGreen(a[x]) - qGreen(b[x])),
                             qAbs(qBlue(a[x]) - qBlue(b[x]))});
    }
    return most;
}

/// The middle of a picture that is larger than the view, as the view shows it at 100 %, less what lies over
/// it.
QImage shownPart(const QImage &picture) {
    const QPoint corner((picture.width() - View.width()) / 2, (picture.height() - View.height()) / 2);
    return picture.copy(QRect(corner, View.size() - QSize(0, StatusHeight)));
}

} // namespace

class WindowPanel : public WindowRun {
protected:
    void SetUp() override {
        setting(u"lastAppVersion"_s, u"3.1.2"_s);
        setting(u"windowGeometry"_s, QRectF(Window));
        setting(u"autopilotRecommendFilters"_s, true);
        setting(u"autopilotUpscalingType"_s, u"scale"_s);
        setting(u"autopilotUpscalingFactor"_s, 2);
    }

    qsizetype runs() const { return log().count("[PROC] Starting proc"); }

    /// Until the engine has run this often in all, and the last run has its result.
    bool waitForRuns(qsizetype count) {
        const bool done = waitUntil([&] {
            const QByteArray all = log();
            return runs() >= count &&
                   all.lastIndexOf("[PROC] Proc finished") > all.lastIndexOf("[PROC] Starting proc");
        });
        EXPECT_EQ(runs(), count);
        return done && runs() == count;
    }

    QJsonObject preset(const QString &name) const {
        QFile in(presetFile(name));
        return in.open(QFile::ReadOnly) ? QJsonDocument::fromJson(in.readAll()).object() : QJsonObject();
    }

    void writePreset(const QString &name, const QByteArray &content) const {
        QDir().mkpath(QFileInfo(presetFile(name)).path());
        QFile out(presetFile(name));
        EXPECT_TRUE(out.open(QFile::WriteOnly) && out.write(content) == content.size());
    }

    /// The rows are the second stop before the window itself; the fourth entry of a row's menu removes them
    /// all.
    static bool removeAll() {
        return press(QStringList(2, u"shift+Tab"_s) << u"Menu"_s << QStringList(4, u"Down"_s) << u"Return"_s);
    }
};

TEST_F(WindowPanel, EditsArePutTogetherKeptCarriedOverAndTakenBack) {
    const QString first = picture(u"first.png"_s, 900, 600);
    const QString second = picture(u"second.png"_s, 700, 560);
    start({first, second});
    ASSERT_TRUE(waitForRuns(1)) << "all of Autopilot's filters are one run";

    ASSERT_TRUE(keys({}));
    ASSERT_TRUE(click(row(0)));
    ASSERT_TRUE(waitForLog("previous proc already covering")) << "less of the picture is seen, and no run";
    ASSERT_TRUE(drag(strength(100), strength(163)));
    ASSERT_TRUE(waitForRuns(2)) << "a drag is one run, at its end";
    ASSERT_TRUE(click(row(0)));
    ASSERT_TRUE(waitForRuns(3)) << "without the filter's panel more of the picture is seen";
    ASSERT_TRUE(press({u"ctrl+k"_s, u"Down"_s, u"Down"_s, u"Return"_s}));
    ASSERT_TRUE(waitForRuns(4));
    ASSERT_TRUE(click(row(1)));
    ASSERT_TRUE(waitForRuns(5));
    ASSERT_TRUE(drag(row(1), row(0)));
    ASSERT_TRUE(waitForLog("Updating enhancement order from"));
    ASSERT_TRUE(waitForRuns(6));

    ASSERT_TRUE(click(SavePreset));
    ASSERT_TRUE(press({u"m"_s, u"i"_s, u"n"_s, u"e"_s, u"Return"_s}));
    ASSERT_TRUE(waitUntil([&] { return !preset(u"mine"_s).isEmpty(); }));
    const QJsonObject kept = preset(u"mine"_s);
    EXPECT_EQ(kept[u"filterOrder"_s].toVariant().toStringList(),
              QStringList({u"Sharpen"_s, u"Denoise"_s, u"Enhance"_s}));
    const QJsonObject denoise = kept[u"controls"_s][u"Denoise"_s][u"params"_s].toObject();
    EXPECT_TRUE(std::any_of(denoise.begin(), denoise.end(), [](const QJsonValue &value) {
        return qAbs(value.toDouble() - 0.69) < 0.02;
    })) << QJsonDocument(denoise).toJson().toStdString();

    // On the second one Autopilot's filters make way for the preset.
    ASSERT_TRUE(press({u"Right"_s}));
    ASSERT_TRUE(waitForRuns(7));
    ASSERT_TRUE(removeAll());
    ASSERT_TRUE(waitForRuns(8));
    ASSERT_TRUE(press({u"ctrl+k"_s, u"Down"_s, u"Return"_s}));
    ASSERT_TRUE(waitForRuns(9));

    const QString made = below(u"made"_s);
    ASSERT_EQ(console({u"--preset"_s, presetFile(u"mine"_s), u"--override"_s, u"-f"_s, u"png"_s, u"-o"_s,
                       made, second}),
              0);
    const QImage expected = shownPart(QImage(made + u"/second.png"_s).convertToFormat(QImage::Format_RGB32));
    const auto shown = [] { return screen().copy(View.adjusted(0, 0, 0, -StatusHeight)); };
    ASSERT_TRUE(press({u"ctrl+1"_s}));
    EXPECT_TRUE(waitUntil([&] { return difference(shown(), expected) <= 1; }))
        << difference(shown(), expected);

    ASSERT_TRUE(removeAll());
    ASSERT_TRUE(waitForRuns(10));
    EXPECT_GT(difference(shown(), expected), 1);
    for (const auto &[key, count] :
         {std::pair(u"ctrl+z"_s, 11), {u"ctrl+shift+z"_s, 12}, {u"ctrl+z"_s, 13}}) {
        ASSERT_TRUE(press({key}));
        ASSERT_TRUE(waitForRuns(count)) << "a step back or forth is one run";
    }
    EXPECT_TRUE(waitUntil([&] { return difference(shown(), expected) <= 1; })) << "back as it was";
    EXPECT_EQ(complaints().join('\n').toStdString(), "");
}

/// Presets that are spoilt, or of another program's version, from the list to the image.
TEST_F(WindowPanel, SpoiltPresetsAreSaidOrBrokenDownToWhatIsSound) {
    setting(u"autopilotUpscalingType"_s, u"none"_s);
    struct Row {
        QString name;
        QByteArray content;
        QByteArray said; // in the log
        int runs;
    };
    const QByteArray unknown =
        R"({"filterOrder":["Dream","Denoise","Denoise"],"controls":{"Dream":{"category":"Dream"},)"
        R"("Denoise":{"category":"Denoise","enabled":true,"model":"Severe Noise"}}})";
    const QByteArray beyond =
        R"({"filterOrder":["Sharpen","Gone"],"controls":{"Sharpen":{"category":"Sharpen","enabled":"x",)"
        R"("model":"Sharpen Strong","params":{"param1":"much","param2":9e99,"stg_blur":-5}}}})";
    const QByteArray vanished =
        R"({"filterOrder":["Sharpen"],"controls":{"Sharpen":{"category":"Sharpen","enabled":true,)"
        R"("model":"Of Yesterday","params":{"stg_blur":0.5}}}})";
    const std::vector<Row> rows = {
        {u"1 cut short"_s, R"({"filterOrder":["Denoise"],"contr)", "Queueing toast: Could not apply preset",
         0},
        {u"2 no filters"_s, R"({"filterOrder":7,"controls":[]})", "Queueing toast: Could not apply preset",
         0},
        {u"3 unknown"_s, unknown, "\"Dream\" is passed over", 1},
        {u"4 beyond"_s, beyond, "\"param2\" can't be", 1},
        {u"5 vanished"_s, vanished, "Of Yesterday", 1},
    };
    for (const Row &row : rows)
        writePreset(row.name, row.content);
    start({picture(u"photo.png"_s, 400, 300)});
    ASSERT_TRUE(waitForRuns(1));
    ASSERT_TRUE(keys({}));
    int runs = 1;
    for (qsizetype i = 0; i < std::ssize(rows); ++i) {
        SCOPED_TRACE(rows[i].name.toStdString());
        const qsizetype before = log().count(rows[i].said);
        ASSERT_TRUE(
            press(QStringList(u"ctrl+k"_s) + QStringList(i + 1, u"Down"_s) + QStringList(u"Return"_s)));
        EXPECT_TRUE(waitUntil([&] { return log().count(rows[i].said) > before; }));
        ASSERT_TRUE(waitForRuns(runs += rows[i].runs));
    }
    EXPECT_EQ(complaints().join('\n').toStdString(), "");
    EXPECT_EQ(pressUntilEnd({u"alt+F4"_s, u"Return"_s}), 0);
}

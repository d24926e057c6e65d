#include "PanelBench.h"

#include "Row.h"

#include "app/Composition.h"
#include "app/Directories.h"
#include "app/studio/Interface.h"
#include "app/studio/InterfaceFonts.h"
#include "host/TIntegrations.h"
#include "host/TIntercom.h"
#include "system/Identity.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QThread>
#include <QtQml/QQmlExtensionPlugin>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <ctime>
#include <functional>

Q_IMPORT_QML_PLUGIN(PebbleUIPlugin)
Q_IMPORT_QML_PLUGIN(ImageEnhancePlugin)

using namespace Qt::StringLiterals;

namespace {

constexpr double RebuildMs = 50;
constexpr double OpenPanelMs = 16.7; // one frame
constexpr double MoveMs = 1;
constexpr int Rounds = 5;
constexpr int Moves = 100;
constexpr int PatienceMs = 20000;
constexpr int QuietMs = 250; // longer than any animation of the column

const QStringList Filters{u"Denoise"_s,  u"Sharpen"_s,  u"Exposure Adjust"_s,  u"White Balance Adjust"_s,
                          u"Denoise2"_s, u"Sharpen2"_s, u"Exposure Adjust2"_s, u"Enhance"_s};

/// Milliseconds that this thread has computed: what other load does not lengthen.
double computed() {
#ifdef Q_OS_LINUX
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e3 * double(time.tv_sec) + double(time.tv_nsec) / 1e6;
#else
    return 1e3 * double(std::clock()) / CLOCKS_PER_SEC; // of all threads
#endif
}

double worst(const std::vector<double> &values) {
    return values.empty() ? -1 : *std::ranges::max_element(values);
}

QObject *part(const QObject *object, const char *name) {
    return object ? object->property(name).value<QObject *>() : nullptr;
}

/// The items of a document below `root`.
QList<QQuickItem *> ofDocument(const QQuickItem *root, const char *name) {
    const QByteArray type = QByteArray(name) + "_QMLTYPE_";
    QList<QQuickItem *> found;
    for (QQuickItem *item : root->childItems()) {
        if (QByteArray(item->metaObject()->className()).startsWith(type))
            found.append(item);
        found.append(ofDocument(item, name));
    }
    return found;
}

class Panel {
public:
    explicit Panel(QQuickWindow *window)
        : m_window(window)
        , m_logic(part(ofDocument(window->contentItem(), "RightPanel").value(0), "logic"))
        , m_stack(part(m_logic, "stack")) {
        // This thread draws the frame, too, which does not count, or waits while another one takes it over.
        QObject::connect(
            window, &QQuickWindow::afterSynchronizing, window,
            [this] {
                if (QThread::currentThread() == m_window->thread())
                    m_atFrame = computed();
                m_frame = true;
            },
            Qt::DirectConnection);
    }

    /// Until the picture has its column.
    bool opened() {
        return m_stack && wait([this] { return m_logic->property("loaded").toBool(); }) && settle();
    }

    int rebuilding();
    int panels();
    int moves();

private:
    static bool wait(const std::function<bool()> &condition) {
        for (const QDeadlineTimer deadline(PatienceMs); !condition() && !deadline.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        return condition();
    }

    /// Until the engine rests, and animations and what waits for a pause are over.
    bool settle() const {
        const auto quiet = [this, since = QDeadlineTimer(QuietMs)]() mutable {
            if (part(m_logic, "engine")->property("processing").toBool())
                since.setRemainingTime(QuietMs);
            return since.hasExpired();
        };
        return wait(quiet);
    }

    /// What this thread computes until what `act` changes is in a frame.
    double toFrame(const std::function<void()> &act) {
        settle();
        const double before = computed();
        m_frame = false;
        m_atFrame = 0;
        act();
        if (!wait([this] { return m_frame.load(); }))
            return -1;
        return (m_atFrame > 0 ? m_atFrame.load() : computed()) - before;
    }

    /// An item of the same engine that stands beside the window's own.
    std::unique_ptr<QObject> reference(const QByteArray &document) const {
        QQmlComponent component(qmlEngine(m_window));
        component.setData("import QtQuick\nimport PebbleUI\n" + document, QUrl(u"qrc:/"_s));
        std::unique_ptr<QObject> object(component.create(qmlContext(m_window)));
        if (auto *item = qobject_cast<QQuickItem *>(object.get()))
            item->setParentItem(m_window->contentItem());
        else
            std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
        return object;
    }

    void show(const QStringList &filters) const {
        QMetaObject::invokeMethod(m_stack, "showStack", Q_ARG(QStringList, filters));
    }
    void openPanel(const QString &filter) const {
        QMetaObject::invokeMethod(part(m_logic, "actions"), "showRefinePanel", Q_ARG(QString, filter),
                                  Q_ARG(QVariant, false));
    }
    void closePanel() const { QMetaObject::invokeMethod(m_stack, "closeRefineMode"); }

    QQuickWindow *m_window;
    QObject *m_logic;
    QObject *m_stack;
    std::atomic<bool> m_frame = false;
    std::atomic<double> m_atFrame = 0; // what was computed() then
};

int Panel::rebuilding() {
    for (const QString &filter : Filters) {
        QString category = filter;
        category.remove(u'2');
        QMetaObject::invokeMethod(m_logic, "addFilter", Q_ARG(QString, category), Q_ARG(bool, false));
    }
    settle();
    if (ofDocument(m_window->contentItem(), "EnhancementsDelegate").size() != Filters.size())
        return 2;
    const auto list =
        reference("ListView { width: 272; height: 480; model: 0; delegate: Rectangle { width: 272; "
                  "height: 48; color: \"gray\" } }");
    std::vector<double> column, plain;
    for (int i = 0; i < Rounds; ++i) {
        toFrame([this] { show({}); });
        column.push_back(toFrame([this] { show(Filters); }));
        toFrame([&] { list->setProperty("model", 0); });
        plain.push_back(toFrame([&] { list->setProperty("model", Filters.size()); }));
    }
    std::printf("a column of 8 filters %.1f ms, at most %.1f; a list of 8 rectangles %.1f ms: %.0f times\n",
                median(column), worst(column), median(plain), median(column) / median(plain));
    return row("a column of 8 filters made anew", median(column), "ms", RebuildMs);
}

int Panel::panels() {
    const auto plain = reference("Rectangle { width: 252; height: 700; color: \"gray\"; visible: false }");
    std::vector<double> first, later, rectangle;
    for (int i = 0; i < Rounds; ++i) {
        for (const QString &filter : Filters) {
            const double took = toFrame([&] { openPanel(filter); });
            (i == 0 ? first : later).push_back(took);
            toFrame([this] { closePanel(); });
        }
        rectangle.push_back(toFrame([&] { plain->setProperty("visible", true); }));
        toFrame([&] { plain->setProperty("visible", false); });
    }
    std::printf(
        "a panel %.1f ms, at most %.1f; shown for the first time at most %.1f ms; a rectangle %.1f ms: %.0f "
        "times\n",
        median(later), worst(later), worst(first), median(rectangle), median(later) / median(rectangle));
    return row("a panel opened again, the slowest", worst(later), "ms", OpenPanelMs);
}

int Panel::moves() {
    toFrame([this] { openPanel(Filters[0]); });
    settle();
    QObject *slider = nullptr;
    for (QQuickItem *one : ofDocument(m_window->contentItem(), "FilterSlider")) {
        if (!slider && part(one, "control")->property("filterName") == Filters[0])
            slider = one;
    }
    if (!slider)
        return 2;
    const auto plain = reference("PbLabeledSlider { width: 220; from: 1; to: 100 }");
    const auto move = [](QObject *moved, int i) {
        const double before = computed();
        moved->setProperty("value", 20 + i % 60); // all but the run, which is put off to later turns
        return computed() - before;
    };
    std::vector<double> joined, alone;
    for (int i = 0; i < Moves; ++i) {
        joined.push_back(move(slider, i));
        wait([until = QDeadlineTimer(10)] { return until.hasExpired(); });
        alone.push_back(move(plain.get(), i));
        wait([until = QDeadlineTimer(10)] { return until.hasExpired(); });
    }
    std::printf("a slider's move %.2f ms, at most %.2f; of one joined to nothing %.2f ms: %.0f times\n",
                median(joined), worst(joined), median(alone), median(joined) / median(alone));
    return row("a slider's move with its panel open", median(joined), "ms", MoveMs);
}

} // namespace

int measurePanel(int argc, char **argv) {
    QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(u"*.info=false\n*.debug=false"_s);
    Identity::setOnApplication();
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    setInterfaceFont();
    setInterfacePalette();
    joinBackends();
    TIntegrations integrations(
        {QCoreApplication::applicationFilePath(), QCoreApplication::arguments().constLast()});
    TIntercom intercom(&application);
    integrations.setup(&application, &intercom);
    const QString logs = QStandardPaths::writableLocation(QStandardPaths::TempLocation) + u"/Logs"_s;
    const Interface ui(application, integrations, intercom,
                       Directories::installRoot(Directories::Environment::ofProcess()), logs);
    auto *window = qobject_cast<QQuickWindow *>(QGuiApplication::topLevelWindows().value(0));
    int result = 2;
    if (window) {
        Panel panel(window);
        if (panel.opened())
            result = panel.rebuilding() | panel.panels() | panel.moves();
        else
            std::fprintf(stderr, "The picture was not opened.\n");
    }
    integrations.cleanup();
    return result;
}

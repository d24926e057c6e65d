#include "items/MouseListener.h"
#include "items/TabletListener.h"
#include "items/WindowsThemeListener.h"
#include "system/OSUtils.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QSignalSpy>
#include <QTabletEvent>

#include <gtest/gtest.h>

namespace {

struct Step {
    QEvent::Type event;
    bool pressed;
    bool released;
    bool exited;
};

void send(QObject &target, QEvent::Type type) {
    QEvent event(type);
    QCoreApplication::sendEvent(&target, &event);
}

TEST(MouseListener, FollowsPressesThroughLeavingAndEntering) {
    QObject window;
    MouseListener listener;
    listener.listenTo(&window);
    const QSignalSpy changed(&listener, &MouseListener::isMousePressedChanged);

    const std::vector<Step> steps = {
        {QEvent::MouseButtonPress, true, false, false},   {QEvent::Leave, false, false, true},
        {QEvent::MouseButtonPress, true, false, true},    {QEvent::MouseButtonRelease, false, true, false},
        {QEvent::MouseButtonRelease, false, true, false}, {QEvent::Enter, false, false, false},
    };
    int signalsSeen = 0;
    for (const Step &step : steps) {
        SCOPED_TRACE(signalsSeen);
        send(window, step.event);
        EXPECT_EQ(listener.isMousePressed(), step.pressed);
        EXPECT_EQ(listener.isMouseReleased(), step.released);
        EXPECT_EQ(listener.isMouseExited(), step.exited);
        EXPECT_EQ(changed.size(), ++signalsSeen);
    }
    send(window, QEvent::MouseMove);
    EXPECT_EQ(changed.size(), signalsSeen);
}

class Receiver : public QObject {
public:
    bool event(QEvent *event) override {
        if (event->type() == QEvent::MouseButtonRelease) {
            ++releases;
            position = static_cast<QMouseEvent *>(event)->position();
        }
        return QObject::event(event);
    }
    int releases = 0;
    QPointF position;
};

TEST(TabletListener, LiftOfThePenIsOneReleaseAtItsPlace) {
    Receiver window;
    TabletListener listener;
    listener.listenTo(&window);
    const QPointF at(12.5, 30);
    for (const QEvent::Type type : {QEvent::TabletPress, QEvent::TabletMove, QEvent::TabletRelease}) {
        QTabletEvent event(type, QPointingDevice::primaryPointingDevice(), at, at, 0.5, 0, 0, 0, 0, 0,
                           Qt::NoModifier, Qt::LeftButton, Qt::LeftButton);
        QCoreApplication::sendEvent(&window, &event);
    }
    EXPECT_EQ(window.releases, 1);
    EXPECT_EQ(window.position, at);
}

TEST(ThemeListener, NamesTheThemeOfTheSystemAndPassesForeignMessagesOn) {
    WindowsThemeListener listener;
    EXPECT_TRUE(listener.theme() == QLatin1String("dark") || listener.theme() == QLatin1String("light"));
    EXPECT_EQ(OSUtils::darkMode(), listener.theme() == QLatin1String("dark")) << "where none is chosen, too";
    const QSignalSpy changed(&listener, &WindowsThemeListener::themeChanged);
    qintptr result = 0;
    EXPECT_FALSE(listener.nativeEventFilter("xcb_generic_event_t", nullptr, &result));
    EXPECT_EQ(changed.size(), 0);
}

} // namespace

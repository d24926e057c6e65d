#include "items/WindowAgent.h"
#include "items/FrameGeometry.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

TEST(FrameGeometry, EdgesCursorsAndResizing) {
    struct Row {
        const char *name;
        QPointF point;
        Qt::Edges edges;
        Qt::CursorShape cursor;
        QRect after; ///< a 100 x 100 window at (50, 50), minimum 80 x 80, dragged by (30, 30)
    };
    const std::vector<Row> rows = {
        {"middle", {50, 50}, {}, Qt::ArrowCursor, {50, 50, 100, 100}},
        {"left", {0, 50}, Qt::LeftEdge, Qt::SizeHorCursor, {70, 50, 80, 100}},
        {"right", {99, 50}, Qt::RightEdge, Qt::SizeHorCursor, {50, 50, 130, 100}},
        {"top", {50, 5}, Qt::TopEdge, Qt::SizeVerCursor, {50, 70, 100, 80}},
        {"bottom right", {97, 99}, Qt::BottomEdge | Qt::RightEdge, Qt::SizeFDiagCursor, {50, 50, 130, 130}},
        {"top right", {97, 1}, Qt::TopEdge | Qt::RightEdge, Qt::SizeBDiagCursor, {50, 70, 130, 80}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const Qt::Edges edges = frameGeometry::edgesAt(row.point, {100, 100}, true);
        EXPECT_EQ(edges, row.edges);
        EXPECT_EQ(frameGeometry::cursorFor(edges), row.cursor);
        EXPECT_EQ(frameGeometry::resized({50, 50, 100, 100}, edges, {30, 30}, {80, 80}), row.after);
        EXPECT_EQ(frameGeometry::edgesAt(row.point, {100, 100}, false), Qt::Edges());
    }
}

TEST(WindowAgent, MovesByItsTitleBarAndLeavesButtonsAlone) {
    QQuickWindow window;
    WindowAgent agent;
    ASSERT_TRUE(agent.setup(&window));
    EXPECT_FALSE(agent.setup(&window));
    QQuickItem bar(window.contentItem());
    bar.setSize({300, 40});
    QQuickItem button(&bar);
    button.setSize({40, 40});
    button.setX(200);
    agent.setTitleBar(&bar);
    agent.setSystemButton(WindowAgent::Close, &button);
    window.setGeometry(100, 100, 300, 200);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));

    const auto drag = [&window](QPoint from, QPoint by) {
        QTest::mousePress(&window, Qt::LeftButton, {}, from);
        QTest::mouseMove(&window, from + by / 2);
        QTest::mouseMove(&window, from + by);
        QTest::mouseRelease(&window, Qt::LeftButton, {}, from + by);
        QTest::qWait(20);
    };
    const QPoint start = window.position();
    drag({210, 20}, {60, 60});
    EXPECT_EQ(window.position(), start) << "a press on a button moves nothing";
    drag({100, 120}, {60, 60});
    EXPECT_EQ(window.position(), start) << "nor does one below the title bar";
    drag({100, 20}, {60, 60});
    EXPECT_NE(window.position(), start);

    QTest::mouseDClick(&window, Qt::LeftButton, {}, {100, 20});
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.windowState() == Qt::WindowMaximized; }, 1000));
    QTest::mouseDClick(&window, Qt::LeftButton, {}, {100, 20});
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.windowState() == Qt::WindowNoState; }, 1000));
}

} // namespace

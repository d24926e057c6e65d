#include "host/MessageFrame.h"
#include "host/TIntercom.h"

#include <QCoreApplication>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
enum Verdict { Ended = 10, WentOn = 11, Served = 12 };
}

/// What a further process does: "client DIR MESSAGE" sends and asks, "crash DIR" serves and dies.
int runAsInstance(const QStringList &arguments) {
    TIntercom intercom(QCoreApplication::instance(), arguments.value(1), nullptr);
    if (arguments.value(0) == "crash"_L1) {
        std::puts(intercom.isServer() ? "serving" : "not serving");
        std::fflush(stdout);
        std::abort();
    }
    if (intercom.isServer())
        return Served;
    intercom.send(arguments.value(2), 3000);
    return intercom.waitForContinue() ? WentOn : Ended;
}

namespace {

class Intercom : public testing::Test {
protected:
    void startClient(QProcess &client, const QString &message) const {
        client.start(QCoreApplication::applicationFilePath(),
                     {u"--instance"_s, u"client"_s, m_dir.path(), message});
    }

    /// The server answers from this thread's event loop, which may be what notices the client's end.
    static int endOf(QProcess &client) {
        const auto ended = [&client] { return client.state() == QProcess::NotRunning; };
        EXPECT_TRUE(QTest::qWaitFor(ended, 60000));
        return client.exitCode();
    }

    int runClient(const QString &message) const {
        QProcess client;
        startClient(client, message);
        return endOf(client);
    }

    QTemporaryDir m_dir;
};

TEST_F(Intercom, SecondInstanceHandsOverOrGoesOn) {
    TIntercom server(QCoreApplication::instance(), m_dir.path(), nullptr);
    ASSERT_TRUE(server.isServer());
    server.setExternalEditor(u"standalone"_s);
    QSignalSpy merged(&server, &TIntercom::mergeInstance);

    struct Row {
        const char *name;
        QString message;
        int verdict;
        QString data;
    };
    const std::vector<Row> rows = {
        {"files for this program", u"plugin:standalone::[\"/ä b.jpg\"]"_s, Ended, u"[\"/ä b.jpg\"]"_s},
        {"data that holds the separator", u"plugin:standalone::a::b"_s, Ended, u"a::b"_s},
        {"another key", u"plugin:other::x"_s, WentOn, {}},
        {"no message at all", u"hello"_s, WentOn, {}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        merged.clear();
        EXPECT_EQ(runClient(row.message), row.verdict);
        ASSERT_EQ(merged.size(), row.data.isNull() ? 0 : 1);
        EXPECT_EQ(merged.value(0).value(0).toString(), row.data);
    }
}

TEST_F(Intercom, BusyServerStillTakesOver) {
    TIntercom server(QCoreApplication::instance(), m_dir.path(), nullptr);
    server.setExternalEditor(u"standalone"_s);
    QSignalSpy merged(&server, &TIntercom::mergeInstance);
    QProcess client;
    startClient(client, u"plugin:standalone::[]"_s);
    // Longer than the client waits for the receipt: a server that is still starting.
    EXPECT_FALSE(client.waitForFinished(4000));
    EXPECT_EQ(endOf(client), Ended);
    EXPECT_EQ(merged.size(), 1);
}

TEST_F(Intercom, LockOfACrashedServerIsTakenOver) {
    QProcess crashing;
    crashing.start(QCoreApplication::applicationFilePath(), {u"--instance"_s, u"crash"_s, m_dir.path()});
    ASSERT_TRUE(crashing.waitForFinished(20000));
    ASSERT_TRUE(crashing.readAllStandardOutput().startsWith("serving"));
    const TIntercom next(QCoreApplication::instance(), m_dir.path(), nullptr);
    EXPECT_TRUE(next.isServer());
}

TEST_F(Intercom, SomeoneWaitingServesWhenTheServerHasGone) {
    auto first = std::make_unique<TIntercom>(QCoreApplication::instance(), m_dir.path(), nullptr);
    TIntercom second(QCoreApplication::instance(), m_dir.path(), nullptr);
    ASSERT_FALSE(second.isServer());
    EXPECT_TRUE(second.waitForContinue()) << "nothing was sent, so there is nothing to wait for";
    QSignalSpy changed(&second, &TIntercom::isServerChanged);
    first.reset();
    ASSERT_TRUE(changed.wait(10000));
    second.setExternalEditor(u"standalone"_s);
    EXPECT_EQ(runClient(u"plugin:standalone::[]"_s), Ended);
}

TEST_F(Intercom, BrokenFramesAreDroppedAndTheServerGoesOn) {
    TIntercom server(QCoreApplication::instance(), m_dir.path(), nullptr);
    server.setExternalEditor(u"standalone"_s);
    QLocalSocket rude;
    rude.connectToServer(m_dir.path() + u"/orvane-studio.socket"_s);
    ASSERT_TRUE(rude.waitForConnected(2000));
    rude.write(QByteArray("\xff\xff\xff\xff garbage"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return rude.state() == QLocalSocket::UnconnectedState; }, 3000));
    EXPECT_EQ(runClient(u"plugin:standalone::[]"_s), Ended);
}

TEST(MessageFrame, ComesApartAtAnyCut) {
    const QByteArray both = messageFrame::pack("first") + messageFrame::pack(QByteArray());
    for (qsizetype cut = 0; cut <= both.size(); ++cut) {
        SCOPED_TRACE(cut);
        QByteArray buffer = both.left(cut);
        QList<QByteArray> taken;
        const auto drain = [&] {
            while (auto message = messageFrame::takeFrom(buffer).message)
                taken.append(*message);
        };
        drain();
        buffer += both.mid(cut);
        drain();
        EXPECT_EQ(taken, (QList<QByteArray>{"first", ""}));
    }
    EXPECT_TRUE(messageFrame::pack(QByteArray(messageFrame::MaxMessage + 1, 'x')).isEmpty());
}

} // namespace

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct Answer {
    int code = -1;
    QByteArray out;
    QByteArray err;
};

// The program as it lies in an installed tree of its own, so that its logs are found alone.
class Entry : public testing::Test {
protected:
    void SetUp() override {
        for (const char *folder :
             {"bin", "share/orvane-studio/models/Denoise", "share/orvane-studio/filterData"})
            ASSERT_TRUE(QDir(m_tree.path()).mkpath(QString::fromLatin1(folder)));
        ASSERT_TRUE(QFile::copy(QStringLiteral(ORVANE_CLI), program()));
    }

    Answer run(const QStringList &arguments) const {
        QProcess process;
        process.start(program(), arguments);
        EXPECT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

    // All logs of this tree, one after the other.
    QByteArray logs() const {
        QByteArray all;
        const QDir folder(m_tree.filePath(QStringLiteral("share/orvane-studio/Logs")));
        for (const QString &name : folder.entryList({QStringLiteral("*.ovlog")}, QDir::Files)) {
            QFile file(folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            all += file.readAll();
        }
        return all;
    }

private:
    QString program() const { return m_tree.filePath(QStringLiteral("bin/orvane-cli")); }

    QTemporaryDir m_tree;
};

TEST_F(Entry, HelpAnswersAndLeavesNothing) {
    for (const char *word : {"--help", "-h"}) {
        const Answer answer = run({QStringLiteral("--overwrite"), QString::fromLatin1(word)});
        EXPECT_EQ(answer.code, 0);
        EXPECT_TRUE(answer.out.startsWith("Options:\n")) << answer.out.constData();
        EXPECT_TRUE(answer.err.isEmpty()) << answer.err.constData();
    }
    EXPECT_TRUE(logs().isEmpty());
}

TEST_F(Entry, QuietUnlessAskedAndAlwaysInTheFile) {
    const Answer quiet = run({});
    EXPECT_EQ(quiet.code, 255);
    EXPECT_FALSE(quiet.err.contains("Info | ")) << quiet.err.constData();
    EXPECT_FALSE(quiet.err.contains("log files")) << quiet.err.constData();
    EXPECT_TRUE(logs().contains("Info | Starting Orvane Studio 3.1.2"));
    EXPECT_TRUE(logs().contains("share/orvane-studio/models")) << "the model folder beside the program";

    const Answer verbose = run({QStringLiteral("-v")});
    EXPECT_EQ(verbose.code, 255);
    EXPECT_TRUE(verbose.err.contains("Info | Starting Orvane Studio 3.1.2")) << verbose.err.constData();
    EXPECT_EQ(run({QStringLiteral("--no-such-option")}).code, 253);
}

} // namespace

#include "presets/TPresetsManager.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Presets : public testing::Test {
protected:
    void SetUp() override { m_manager.setPresetsDirectory(m_dir.path()); }
    void put(const QString &name, const QByteArray &content) {
        QFile file(m_dir.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir m_dir;
    TPresetsManager m_manager;
};

TEST_F(Presets, ComeBackAfterARestart) {
    QSignalSpy changed(&m_manager, &TPresetsManager::presetsChanged);
    const QVariantMap preset = {
        {u"name"_s, u"Überall"_s}, {u"version"_s, 1}, {u"filterOrder"_s, QVariantList{u"Denoise"_s}}};
    m_manager.savePreset(preset);
    m_manager.savePreset(preset);
    EXPECT_EQ(changed.size(), 2);

    TPresetsManager restarted;
    restarted.setPresetsDirectory(m_dir.path());
    EXPECT_EQ(restarted.presets(), QSet<QString>{u"Überall"_s});
    EXPECT_EQ(restarted.getPreset(u"Überall"_s).value(u"filterOrder"_s), preset.value(u"filterOrder"_s));

    m_manager.deletePreset(u"unknown"_s);
    EXPECT_EQ(changed.size(), 2);
    m_manager.deletePreset(u"Überall"_s);
    EXPECT_EQ(changed.size(), 3);
    EXPECT_TRUE(m_manager.getPreset(u"Überall"_s).isEmpty());
}

TEST_F(Presets, DamagedFilesAreListedAndOpenAsNothing) {
    put(u"list.json"_s, "[1]");
    put(u"cut.json"_s, "{\"a\":");
    put(u"renamed.json"_s, R"({"name": "old", "version": 1})");
    put(u"a.b.json"_s, "{\"version\": 1}");
    put(u"other.txt"_s, "{}");
    TPresetsManager manager;
    QSignalSpy changed(&manager, &TPresetsManager::presetsChanged);
    manager.setPresetsDirectory(m_dir.path());
    manager.setPresetsDirectory(m_dir.path());
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(manager.presets(), (QSet<QString>{u"list"_s, u"cut"_s, u"renamed"_s, u"a"_s}));
    for (const QString &name : {u"list"_s, u"cut"_s, u"a"_s})
        EXPECT_TRUE(manager.getPreset(name).isEmpty()) << name.toStdString();
    EXPECT_EQ(manager.getPreset(u"renamed"_s).value(u"name"_s), u"renamed"_s);
}

TEST_F(Presets, UnwritableDirectoryKeepsTheName) {
    TPresetsManager manager;
    manager.setPresetsDirectory(m_dir.filePath(u"missing/deeper"_s));
    manager.savePreset({{u"name"_s, u"x"_s}});
    EXPECT_TRUE(manager.presets().contains(u"x"_s));
    EXPECT_TRUE(manager.getPreset(u"x"_s).isEmpty());
}

} // namespace

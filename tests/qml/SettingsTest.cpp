#include "MainSettings.h"

#include "frontends/TEngineController.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A store of the test's own; a MainSettings made after another one finds what a restart would.
class Settings : public testing::Test {
protected:
    Settings() {
        QCoreApplication::setOrganizationName(u"Orvane Works tests"_s);
        QCoreApplication::setApplicationName(u"settings"_s);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
        s_warnings.clear();
        m_before =
            qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
                if (type == QtWarningMsg)
                    s_warnings.append(text);
            });
    }
    ~Settings() override { qInstallMessageHandler(m_before); }

    static inline QStringList s_warnings;

private:
    QTemporaryDir m_folder;
    QtMessageHandler m_before = nullptr;
};

/// A valid value that is not the default.
QVariant another(const Preference &p) {
    if (!p.values.isEmpty())
        return p.values.at(p.values.first() == p.initial ? 1 : 0);
    const int number = p.initial.toInt();
    const QHash<int, QVariant> others = {
        {QMetaType::Bool, !p.initial.toBool()},
        {QMetaType::Int, number < p.highest ? number + 1 : number - 1},
        {QMetaType::Double, p.initial.toDouble() + 0.25},
        {QMetaType::QString, u"a, b"_s},
        {QMetaType::QStringList, QStringList{u"one, two"_s}},
        {QMetaType::QRectF, QRectF(1, 2, 300, 400)},
        {QMetaType::QPointF, QPointF(10, 20)},
        {QMetaType::QColor, QColor(0x33, 0x66, 0xcc)},
        {QMetaType::QDateTime, QDate(2026, 1, 1).startOfDay()},
        {QMetaType::QVariantList, QVariantList{outputFolderChoice("Holidays", "/holidays")}},
    };
    return others.value(p.initial.typeId());
}

/// What no version stores under this key; nothing for a free text, where there is no such thing.
QVariantList damaged(const Preference &p) {
    const QVariant list = QVariantList{u"a"_s, 5};
    if (p.initial.typeId() == QMetaType::QStringList)
        return {u""_s};
    if (p.initial.typeId() == QMetaType::QString && p.values.isEmpty())
        return {list};
    QVariantList all = {u"garbage"_s, list, u""_s};
    for (const double limit : {p.lowest - 1, p.highest + 1})
        if (std::isfinite(limit))
            all.append(limit);
    return all;
}

} // namespace

TEST_F(Settings, EveryPreferenceIsStoredAndReachesTheEngine) {
    const auto check = [](const MainSettings &settings, const TEngineController &engine, auto expected) {
        for (const Preference &p : preferenceTable()) {
            SCOPED_TRACE(p.key.toStdString());
            const QVariant value = expected(p);
            EXPECT_EQ(settings.property(p.key.toLatin1()), value);
            EXPECT_EQ(QSettings().value(p.key), value) << "at once, for who reads the store itself";
            EXPECT_EQ(storedPreference(QSettings(), p.key), value);
            if (!p.engineProperty.isEmpty()) {
                EXPECT_EQ(engine.property(p.engineProperty.toLatin1()), value);
            }
        }
    };
    TEngineController engine, next;
    {
        MainSettings first;
        check(first, engine, [](const Preference &p) { return p.initial; });
        first.feed(&engine);
        for (const Preference &p : preferenceTable())
            first.setProperty(p.key.toLatin1(), another(p));
        check(first, engine, another);
    }
    MainSettings restarted;
    restarted.feed(&next, {u"deviceId"_s});
    EXPECT_EQ(next.deviceId(), -2) << "what its owner binds";
    next.setDeviceId(restarted.property("deviceId").toInt());
    check(restarted, next, another);
    EXPECT_EQ(s_warnings, QStringList());
}

TEST_F(Settings, DamageGivesWayToTheDefault) {
    MainSettings();
    for (qsizetype round = 0; round < 5; ++round) {
        QStringList expected;
        for (const Preference &p : preferenceTable()) {
            if (const QVariantList spoilt = damaged(p); round < spoilt.size()) {
                QSettings().setValue(p.key, spoilt.at(round));
                EXPECT_EQ(storedPreference(QSettings(), p.key), p.initial) << p.key.toStdString();
                expected << "The setting %1 held no valid value; it has its default now."_L1.arg(p.key);
            }
        }
        MainSettings settings;
        EXPECT_EQ(s_warnings, expected);
        for (const Preference &p : preferenceTable())
            EXPECT_EQ(settings.property(p.key.toLatin1()), p.initial) << p.key.toStdString();
        s_warnings.clear();
        MainSettings again;
        EXPECT_EQ(s_warnings, QStringList()) << "the damage is gone from the store";
    }
}

TEST_F(Settings, ListsOfAnyLengthSurviveARestart) {
    for (const QStringList &list :
         {QStringList(), QStringList{u"necks"_s}, QStringList{u"necks"_s, u"hair"_s}}) {
        MainSettings().setProperty("faceParts", list);
        EXPECT_EQ(MainSettings().property("faceParts"), list);
    }
}

// As the first versions wrote it.
TEST_F(Settings, OlderStoresAreRead) {
    MainSettings().setProperty("exportsCount", 1);
    QFile file(QSettings().fileName());
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Truncate));
    file.write(R"([General]
autopilotDenoiseRawStrength=1
autopilotSharpenBlurs=@Variant(\0\0\0\t\0\0\0\x1\0\0\0\n\0\0\0\b\0h\0i\0g\0h)
colorScheme=dark
dragState=@Variant(\0\0\0\x1a@$\0\0\0\0\0\0@4\0\0\0\0\0\0)
faceParts=@Invalid()
maskOverlayColor=@Variant(\0\0\0\x43\x1\xff\xff\x33\x33\x66\x66\xcc\xcc\0\0)
maskOverlayOpacity=0.25
outputFolderList=@Variant(\0\0\0\t\0\0\0\x1\0\0\0\b\0\0\0\x2\0\0\0\b\0t\0\x65\0x\0t\0\0\0\n\0\0\0\x1e\0O\0r\0i\0g\0i\0n\0\x61\0l\0 \0\x66\0o\0l\0\x64\0\x65\0r\0\0\0\n\0v\0\x61\0l\0u\0\x65\0\0\0\n\0\0\0\x10\0p\0r\0\x65\0s\0\x65\0r\0v\0\x65)
recentFiles="/a, b.jpg", /c.jpg
rightPanelCollapsed=true
windowGeometry=@Variant(\0\0\0\x14?\xf0\0\0\0\0\0\0@\0\0\0\0\0\0\0@r\xc0\0\0\0\0\0@y\0\0\0\0\0\0)
windowVisibility=4
)");
    file.close();
    QSettings().sync();
    const MainSettings settings;
    const QVariantMap expected = {
        {u"autopilotDenoiseRawStrength"_s, 1},
        {u"autopilotSharpenBlurs"_s, QStringList{u"high"_s}},
        {u"colorScheme"_s, u"dark"_s},
        {u"dragState"_s, QPointF(10, 20)},
        {u"faceParts"_s, QStringList()},
        {u"maskOverlayColor"_s, QColor(0x33, 0x66, 0xcc)},
        {u"maskOverlayOpacity"_s, 0.25},
        {u"outputFolderList"_s, QVariantList{outputFolderChoice("Original folder", "preserve")}},
        {u"recentFiles"_s, QStringList{u"/a, b.jpg"_s, u"/c.jpg"_s}},
        {u"rightPanelCollapsed"_s, true},
        {u"windowGeometry"_s, QRectF(1, 2, 300, 400)},
        {u"windowVisibility"_s, 4},
    };
    for (auto row = expected.begin(); row != expected.end(); ++row)
        EXPECT_EQ(settings.property(row.key().toLatin1()), row.value()) << row.key().toStdString();
    EXPECT_EQ(s_warnings, QStringList());
}

TEST_F(Settings, VanishedFoldersAreNotOffered) {
    MainSettings settings;
    const QVariantList offered = settings.property("outputFolderList").toList();
    settings.setProperty("outputFolderList", offered + QVariantList{outputFolderChoice("Gone", "/gone")});
    settings.dropVanishedFolders();
    EXPECT_EQ(settings.property("outputFolderList").toList(), offered);
}

#pragma once

#include "contracts/ImageData.h"

#include <QSignalSpy>
#include <QTest>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <functional>
#include <thread>

/// Runs the event loop until the condition holds; false when it never does.
inline bool eventually(const std::function<bool()> &condition) {
    return QTest::qWaitFor(condition, 10000);
}

/// Runs the event loop long enough for a wrong, late answer to show.
inline void settle() {
    QTest::qWait(30);
}

inline QVariantMap imageMap(const QString &path = QStringLiteral("/pictures/a.jpg"), int width = 8,
                            int height = 6) {
    return {{QStringLiteral("uid"), QString(path + QStringLiteral("#1"))},
            {QStringLiteral("filepath"), path},
            {QStringLiteral("image"),
             QVariant::fromValue(std::make_shared<ImageData>(width, height, 3, SampleType::UInt8))}};
}

#pragma once

#include "Capture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A folder that goes with the test, and what is written to the streams meanwhile.
class FolderTest : public testing::Test {
protected:
    QString at(const QString &name) const { return m_folder.path() + u'/' + name; }
    /// An empty file and the folders above it.
    QString make(const QString &name) const {
        QDir().mkpath(QFileInfo(at(name)).path());
        EXPECT_TRUE(QFile(at(name)).open(QFile::WriteOnly));
        return at(name);
    }

    QTemporaryDir m_folder;
    Capture m_capture;
};

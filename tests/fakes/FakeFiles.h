#pragma once

#include "frontends/FileBackends.h"
#include "tests/fakes/Hold.h"

#include <QFile>
#include <QHash>

#include <mutex>
#include <vector>

/// Image files in memory. Close a hold to keep work of that kind under way.
class FakeFiles : public ImageFileBackend {
public:
    Hold readHold;
    Hold writeHold;

    /// From now on the path can be read: a picture of that size without meaningful pixels.
    void add(const QString &path, int width = 8, int height = 6) {
        ReadResult result;
        result.image = std::make_shared<ImageData>(width, height, 3, SampleType::UInt8);
        result.metadata.insert(QStringLiteral("make"), QStringLiteral("Maker"));
        add(path, result);
    }
    void add(const QString &path, const ReadResult &result) {
        const std::scoped_lock lock(m_mutex);
        m_files.insert(path, result);
    }
    /// Writing or estimating this path fails from now on.
    void failWriting(const QString &path, const QString &why) {
        const std::scoped_lock lock(m_mutex);
        m_failures.insert(path, why);
    }
    std::vector<WriteRequest> written() const { return copy(m_written); }
    std::vector<ReadRequest> reads() const { return copy(m_reads); }
    std::vector<WriteRequest> estimates() const { return copy(m_estimates); }
    std::vector<QString> thumbnails() const { return copy(m_thumbnails); }

    FileFormats formats() const override { return fileFormats(); }
    ReadResult read(const ReadRequest &request, const RunControl &control) override {
        record(m_reads, request);
        if (!readHold.pass(control))
            return {.cancelled = true};
        const std::scoped_lock lock(m_mutex);
        return m_files.value(request.path, {.error = QStringLiteral("Cannot read ") + request.path});
    }
    QSize imageSize(const QString &path) override {
        const std::scoped_lock lock(m_mutex);
        const ReadResult file = m_files.value(path);
        return file.image ? QSize(file.image->width(), file.image->height()) : QSize();
    }
    WriteResult write(const WriteRequest &request, const RunControl &control) override {
        control.report(0.5, QStringLiteral("encode"));
        if (!writeHold.pass(control))
            return {.cancelled = true};
        return put(m_written, request, request.outputPath);
    }
    WriteResult estimate(const WriteRequest &request, const QString &, const RunControl &) override {
        return put(m_estimates, request, request.inputPath);
    }
    WriteResult writeThumbnail(const QString &source, const QString &target, int,
                               const RunControl &control) override {
        record(m_thumbnails, source);
        if (!readHold.pass(control))
            return {.cancelled = true};
        const std::scoped_lock lock(m_mutex);
        if (!m_files.contains(source))
            return {.error = QStringLiteral("Cannot read ") + source};
        QFile file(target);
        return file.open(QFile::WriteOnly) ? WriteResult{.fileSize = file.write("picture")}
                                           : WriteResult{.error = file.errorString()};
    }

private:
    WriteResult put(std::vector<WriteRequest> &records, const WriteRequest &request, const QString &path) {
        const std::scoped_lock lock(m_mutex);
        if (m_failures.contains(path))
            return {.error = m_failures.value(path)};
        records.push_back(request);
        return {.fileSize = qint64(request.image->byteCount())};
    }
    template <typename T>
    void record(std::vector<T> &records, const T &entry) {
        const std::scoped_lock lock(m_mutex);
        records.push_back(entry);
    }
    template <typename T>
    T copy(const T &records) const {
        const std::scoped_lock lock(m_mutex);
        return records;
    }

    mutable std::mutex m_mutex;
    QHash<QString, ReadResult> m_files;
    QHash<QString, QString> m_failures;
    std::vector<WriteRequest> m_written;
    std::vector<WriteRequest> m_estimates;
    std::vector<ReadRequest> m_reads;
    std::vector<QString> m_thumbnails;
};

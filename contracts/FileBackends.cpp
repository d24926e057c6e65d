#include "contracts/FileBackends.h"

namespace {

/// Stands where no image library was handed in, and says so.
class NoFiles : public ImageFileBackend {
public:
    FileFormats formats() const override { return fileFormats(); }
    ReadResult read(const ReadRequest &, const RunControl &) override { return {.error = message()}; }
    QSize imageSize(const QString &) override { return {}; }
    WriteResult write(const WriteRequest &, const RunControl &) override { return {.error = message()}; }
    WriteResult estimate(const WriteRequest &, const QString &, const RunControl &) override {
        return {.error = message()};
    }
    WriteResult writeThumbnail(const QString &, const QString &, int, const RunControl &) override {
        return {.error = message()};
    }

private:
    static QString message() { return QStringLiteral("No image library is available."); }
};

std::shared_ptr<ImageFileBackend> &current() {
    static std::shared_ptr<ImageFileBackend> backend = std::make_shared<NoFiles>();
    return backend;
}

} // namespace

std::shared_ptr<ImageFileBackend> imageFileBackend() {
    return current();
}

void setImageFileBackend(std::shared_ptr<ImageFileBackend> backend) {
    if (backend)
        setFileFormats(backend->formats());
    current() = backend ? std::move(backend) : std::make_shared<NoFiles>();
}

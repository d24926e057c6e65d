#include "frontends/FileBackends.h"

namespace {

FileFormats builtIn() {
    FileFormats f;
    f.raw =
        QStringLiteral("3fr ari arw bay cap cr2 cr3 crw dcr dcs dng drf eip erf fff gpr iiq k25 kdc mdc mef "
                       "mos mrw nef nrw orf pef ptx pxn raf raw rw2 rwl rwz sr2 srf srw x3f")
            .split(QLatin1Char(' '));
    f.writable = QStringLiteral("jpg jpeg png tif tiff dng webp bmp").split(QLatin1Char(' '));
    f.readable =
        QStringLiteral("jpg jpeg png tif tiff webp bmp heic heif avif").split(QLatin1Char(' ')) + f.raw;
    return f;
}

FileFormats &currentFormats() {
    static FileFormats formats = builtIn();
    return formats;
}

/// Used where no image library was handed in: every answer says so.
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
        currentFormats() = backend->formats();
    current() = backend ? std::move(backend) : std::make_shared<NoFiles>();
}

const FileFormats &fileFormats() {
    return currentFormats();
}

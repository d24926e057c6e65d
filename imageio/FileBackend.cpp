#include "imageio/FileBackend.h"

#include "imageio/ImageReading.h"
#include "imageio/ImageWriting.h"
#include "imageio/SizeEstimate.h"
#include "imageio/SupportedFormats.h"
#include "imageio/Text.h"
#include "imageio/Thumbnail.h"

#include <OpenImageIO/imageio.h>

#include <new>

#include <tiffio.h>

namespace {

using imageio::Text;

/// Runs `work` and turns whatever a library throws into a sentence.
template <typename Result, typename Work>
Result guarded(Work work) {
    Result result;
    try {
        return work();
    } catch (const std::bad_alloc &) {
        result.error = Text::tr("There is not enough memory for this picture.");
    } catch (const std::exception &e) {
        result.error = Text::tr("The file can't be handled: %1.").arg(QString::fromUtf8(e.what()));
    } catch (...) {
        result.error = Text::tr("The file can't be handled.");
    }
    return result;
}

class FileBackend final : public ImageFileBackend {
public:
    FileBackend() {
        // Only the plug-in that was asked for may look at a file.
        OIIO::attribute("try_all_readers", 0);
        // It writes each oddity to standard error; results say enough.
        TIFFSetErrorHandler(nullptr);
        TIFFSetWarningHandler(nullptr);
        imageio::startMetadataLibrary();
    }

    FileFormats formats() const override { return imageio::supportedFormats(); }

    ReadResult read(const ReadRequest &request, const RunControl &control) override {
        return guarded<ReadResult>([&] { return imageio::readPicture(request, control); });
    }

    QSize imageSize(const QString &path) override {
        try {
            return imageio::pictureSize(path);
        } catch (...) {
            return {};
        }
    }

    WriteResult write(const WriteRequest &request, const RunControl &control) override {
        return guarded<WriteResult>([&] { return imageio::writePicture(request, control); });
    }

    WriteResult estimate(const WriteRequest &request, const QString &extension,
                         const RunControl &control) override {
        return guarded<WriteResult>([&] { return imageio::estimateSize(request, extension, control); });
    }

    WriteResult writeThumbnail(const QString &source, const QString &target, int side,
                               const RunControl &control) override {
        return guarded<WriteResult>([&] { return imageio::writeThumbnailOf(source, target, side, control); });
    }
};

} // namespace

std::shared_ptr<ImageFileBackend> makeFileBackend() {
    return std::make_shared<FileBackend>();
}

#include "contracts/FileFormats.h"

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

FileFormats &current() {
    static FileFormats formats = builtIn();
    return formats;
}

} // namespace

const FileFormats &fileFormats() {
    return current();
}

void setFileFormats(const FileFormats &formats) {
    current() = formats;
}

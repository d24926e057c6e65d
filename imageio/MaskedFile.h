#pragma once

#include "imageio/FileProbe.h"
#include "imageio/platform/Files.h"

#include <OpenImageIO/filesystem.h>

namespace imageio {

/// A file as the image library gets to see it: with the masks of a probe laid over. They hide
/// profiles, camera data and texts, whose parsers in that library's release fail on damaged input;
/// we read those with other libraries.
class MaskedFile final : public OIIO::Filesystem::IOProxy {
public:
    MaskedFile(const QString &path, const FileFacts &facts);
    ~MaskedFile() override;
    MaskedFile(const MaskedFile &) = delete;
    MaskedFile &operator=(const MaskedFile &) = delete;

    const char *proxytype() const override { return "file"; }
    void close() override;
    size_t read(void *to, size_t size) override;
    size_t pread(void *to, size_t size, int64_t offset) override;
    size_t size() const override { return size_t(m_size); }

private:
    std::vector<FileMask> m_masks; ///< by offset, without overlap
    qint64 m_size = 0;
    platform::ReadFile m_file;
};

} // namespace imageio

#include "imageio/MaskedFile.h"

#include <algorithm>
#include <cstring>

namespace imageio {

MaskedFile::MaskedFile(const QString &path, const FileFacts &facts)
    : IOProxy(path.toStdString(), Read)
    , m_masks(facts.masks)
    , m_size(facts.fileSize)
    , m_file(path) {
    std::ranges::sort(m_masks, {}, &FileMask::offset);
    if (!m_file.isOpen())
        m_mode = Closed;
}

MaskedFile::~MaskedFile() {
    close();
}

void MaskedFile::close() {
    m_file.close();
    m_mode = Closed;
}

size_t MaskedFile::read(void *to, size_t size) {
    const size_t count = pread(to, size, m_pos);
    m_pos += int64_t(count);
    return count;
}

size_t MaskedFile::pread(void *to, size_t size, int64_t offset) {
    const size_t done = m_file.read(to, size, offset);
    const int64_t end = offset + int64_t(done);
    const auto liesBefore = [&](const FileMask &mask) { return mask.offset + mask.bytes.size() <= offset; };
    for (auto it = std::ranges::partition_point(m_masks, liesBefore); it != m_masks.end() && it->offset < end;
         ++it) {
        const qint64 from = std::max<qint64>(it->offset, offset);
        const qint64 until = std::min<qint64>(it->offset + it->bytes.size(), end);
        std::memcpy(static_cast<char *>(to) + (from - offset), it->bytes.constData() + (from - it->offset),
                    size_t(until - from));
    }
    return done;
}

} // namespace imageio

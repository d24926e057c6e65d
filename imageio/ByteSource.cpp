#include "imageio/ByteSource.h"

#include "imageio/Text.h"

#include <QFileInfo>

#include <array>
#include <cstring>

namespace imageio {

QString ByteSource::open(const QString &path) {
    const QFileInfo info(path);
    if (path.isEmpty())
        return Text::tr("No file was named.");
    if (!info.exists())
        return info.isSymLink() ? Text::tr("The file is a link to a file that does not exist.")
                                : Text::tr("The file does not exist.");
    if (info.isDir())
        return Text::tr("This is a folder, not a file.");
    if (!info.isFile())
        return Text::tr("This is a device or pipe, not a file.");
    if (info.size() == 0)
        return Text::tr("The file is empty.");
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::ReadOnly))
        return Text::tr("The file can't be opened: %1.").arg(m_file.errorString());
    m_size = m_file.size();
    return {};
}

bool ByteSource::read(qint64 offset, std::span<std::uint8_t> to) {
    const qint64 count = qint64(to.size());
    if (offset < 0 || offset > m_size || count > m_size - offset || !m_file.seek(offset) ||
        m_file.read(reinterpret_cast<char *>(to.data()), count) != count) {
        m_overran = true;
        std::memset(to.data(), 0, to.size());
        return false;
    }
    return true;
}

bool ByteSource::startsWith(qint64 offset, std::string_view bytes) {
    std::array<std::uint8_t, 32> buffer{};
    if (bytes.size() > buffer.size() || offset < 0 || qint64(bytes.size()) > m_size - offset)
        return false;
    return read(offset, std::span(buffer).first(bytes.size())) &&
           std::memcmp(buffer.data(), bytes.data(), bytes.size()) == 0;
}

std::uint64_t ByteSource::number(qint64 offset, int bytes, bool big) {
    std::array<std::uint8_t, 8> buffer{};
    if (!read(offset, std::span(buffer).first(std::size_t(bytes))))
        return 0;
    std::uint64_t value = 0;
    for (int i = 0; i < bytes; ++i)
        value = value << 8 | buffer[std::size_t(big ? i : bytes - 1 - i)];
    return value;
}

} // namespace imageio

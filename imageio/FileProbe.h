#pragma once

#include "imageio/ByteSource.h"

#include <QByteArray>
#include <QSize>

#include <vector>

namespace imageio {

enum class FileKind { Unknown, Jpeg, Png, Tiff, WebP, Bmp, Heif, Raw };

/// Bytes that a decoder is to see in place of those at `offset`.
struct FileMask {
    qint64 offset = 0;
    QByteArray bytes;
};

/// What the header of a file says, read by our own code before any decoder opens it.
struct FileFacts {
    QString error; ///< a sentence, empty when the file may be given to its decoder
    FileKind kind = FileKind::Unknown;
    qint64 fileSize = 0;
    qint64 width = 0; ///< as stored, before orientation; 0 for RAW, whose decoder finds it
    qint64 height = 0;
    int channels = 0;
    int bits = 0; ///< per channel
    bool cmyk = false;
    bool cmykInverted = false; ///< 0 stands for full ink
    bool turned = false;       ///< the container itself asks for a quarter turn (HEIF)
    bool nameDisagrees = false;
    /// The most pixels that one byte of this kind of file can describe; 0 where nothing is known.
    double pixelsPerByte = 0;
    QByteArray icc;              ///< where the probe itself came across it
    std::vector<FileMask> masks; ///< hides all metadata from the image library
};

/// Determines the kind by content, with the name deciding only between a TIFF and the camera formats
/// built on it, reads the header and applies the decode limits.
FileFacts probeFile(const QString &path);

/// The library plug-in name of a kind, and the name that users see.
const char *pluginName(FileKind kind);
QString kindName(FileKind kind);

void probeJpeg(ByteSource &source, FileFacts &facts);
void probePng(ByteSource &source, FileFacts &facts);
void probeTiff(ByteSource &source, FileFacts &facts);
/// A camera file built on TIFF: of a DNG all of the picture must be there, since its library fills in what is
/// not.
void probeRawTiff(ByteSource &source, FileFacts &facts);
void probeWebP(ByteSource &source, FileFacts &facts);
void probeBmp(ByteSource &source, FileFacts &facts);
void probeHeif(ByteSource &source, FileFacts &facts);

} // namespace imageio

#pragma once

#include <QString>

/// Where this program keeps files that may be deleted at any time. One folder for each user below the
/// system's temporary folder, readable by that user alone.
namespace TempFolders {

QString root();
QString thumbnails();

/// Makes the folder with the rights of its owner only; false when that can't be done.
bool make(const QString &folder);

/// Where the thumbnail of a picture lies, written or not. Another one after the file has changed.
QString thumbnailOf(const QString &imagePath);

/// Where an installer fetched from this address lies; a local file's address means that file.
QString installerOf(const QString &url);

} // namespace TempFolders

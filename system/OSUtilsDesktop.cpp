#include "system/OSUtils.h"

#include "system/TempFolders.h"

#include <QClipboard>
#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPointer>
#include <QProcess>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// The path of a new file with this picture, or empty.
QString savedPicture(const QImage &picture) {
    const QString folder = TempFolders::root();
    if (picture.isNull() || !TempFolders::make(folder))
        return {};
    const QString path = folder + u"/OVST_Clipboard_"_s + OSUtils::generateUuid() + u".png"_s;
    if (picture.save(path))
        return path;
    qWarning().noquote() << "The picture on the clipboard could not be stored as" << path;
    return {};
}

/// The question to the file manager that every desktop environment answers.
QStringList showItemsCall(const QString &path) {
    return {
        u"--session"_s, u"--print-reply"_s, u"--dest=org.freedesktop.FileManager1"_s, u"--type=method_call"_s,
        u"/org/freedesktop/FileManager1"_s, u"org.freedesktop.FileManager1.ShowItems"_s,
        // A comma would separate two items.
        u"array:string:"_s + QString::fromUtf8(QUrl::fromLocalFile(path).toEncoded()).replace(u',', "%2C"_L1),
        u"string:"_s};
}

} // namespace

QStringList OSUtils::clipboard() {
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    QStringList paths;
    if (!data)
        return paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    if (paths.isEmpty() && data->hasImage()) {
        const QString path = savedPicture(qvariant_cast<QImage>(data->imageData()));
        if (!path.isEmpty())
            paths.append(path);
    }
    return paths;
}

bool OSUtils::openFolder(const QString &folder) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

void OSUtils::showFileInGraphicalShell(const QString &path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        Q_EMIT fileMissing(path);
        return;
    }
    const auto showFolder = [self = QPointer(this), path, folder = info.absolutePath()] {
        if (!openFolder(folder) && self)
            Q_EMIT self->showFileError(path);
    };
#ifdef Q_OS_WIN
    if (!QProcess::startDetached(u"explorer.exe"_s, {u"/select,"_s, QDir::toNativeSeparators(path)}))
        showFolder();
#elif defined(Q_OS_MACOS)
    if (!QProcess::startDetached(u"/usr/bin/open"_s, {u"-R"_s, path}))
        showFolder();
#else
    auto *call = new QProcess(this);
    connect(call, &QProcess::errorOccurred, this, [call, showFolder](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            call->deleteLater();
            showFolder();
        }
    });
    connect(call, &QProcess::finished, this, [call, showFolder](int code, QProcess::ExitStatus) {
        call->deleteLater();
        if (code != 0)
            showFolder();
    });
    call->start(u"dbus-send"_s, showItemsCall(info.absoluteFilePath()));
#endif
}

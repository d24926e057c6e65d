#include "cli/OutputNaming.h"

#include "frontends/TImageUtils.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QMap<QString, OutputFormat> &formatsByExtension() {
    static const QMap<QString, OutputFormat> formats = {
        {u"jpg"_s, OutputFormat::Jpeg}, {u"jpeg"_s, OutputFormat::Jpeg}, {u"png"_s, OutputFormat::Png},
        {u"tif"_s, OutputFormat::Tiff}, {u"tiff"_s, OutputFormat::Tiff}, {u"dng"_s, OutputFormat::Dng}};
    return formats;
}

QString defaultExtension(OutputFormat format) {
    switch (format) {
    case OutputFormat::Jpeg:
        return u"jpeg"_s;
    case OutputFormat::Png:
        return u"png"_s;
    case OutputFormat::Tiff:
        return u"tiff"_s;
    case OutputFormat::Dng:
        return u"dng"_s;
    case OutputFormat::Preserve:
        break;
    }
    return {};
}

// A dot in a folder's name is no extension.
QString withoutExtension(const QString &path) {
    const qsizetype dot = path.lastIndexOf(u'.');
    const qsizetype separator = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(QDir::separator()));
    return dot > separator ? path.left(dot) : path;
}

QString replaceExtension(const QString &path, const QString &extension) {
    return withoutExtension(path) + u'.' + extension;
}

// A folder named on the command line counts with all below it; one whose name merely begins alike does not.
QString pathBelow(const QString &directory, const QString &inputPath) {
    const QString absolute = QFileInfo(inputPath).absoluteFilePath();
    const QDir root(directory);
    if (!absolute.startsWith(root.absolutePath(), Qt::CaseInsensitive))
        return {};
    const QString relative = root.relativeFilePath(absolute);
    return relative.startsWith("../"_L1) || QDir::isAbsolutePath(relative) ? QString() : relative;
}

QString pathInFolder(const QString &inputPath, const QString &extension, const BatchOptions &options) {
    for (const QString &directory : options.inputDirectories) {
        const QString relative = pathBelow(directory, inputPath);
        if (relative.isEmpty())
            continue;
        const QString output = replaceExtension(
            options.outputFolder + QDir::separator() + QDir::toNativeSeparators(relative), extension);
        // Going up fails where the parent is missing; then, and only then, this makes the whole chain.
        // Otherwise the deepest folder is left to the writer.
        QDir folder = QFileInfo(output).dir();
        folder.cdUp();
        folder.mkpath(u"."_s);
        return output;
    }
    return u"%1/%2.%3"_s.arg(options.outputFolder, QFileInfo(inputPath).completeBaseName(), extension);
}

QString identityOf(const QString &path) {
    const QFileInfo info(path);
    const QString folder = info.dir().canonicalPath();
    return folder.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : folder + u'/' + info.fileName();
}

} // namespace

OutputKind outputKind(const QString &inputPath, OutputFormat requested) {
    const QString extension = QFileInfo(inputPath).suffix();
    const QString lower = extension.toLower();
    if (requested == OutputFormat::Preserve) {
        if (TImageUtils::rawFileFormats().contains(lower))
            return outputKind(inputPath, OutputFormat::Dng);
        return {formatsByExtension().value(lower, OutputFormat::Preserve), extension};
    }
    const bool saysSo = formatsByExtension().value(lower, OutputFormat::Preserve) == requested;
    return {requested, saysSo ? extension : defaultExtension(requested)};
}

QString OutputNaming::pathFor(const QString &inputPath, const QString &extension,
                              const BatchOptions &options) {
    QString output = options.outputFolder.isEmpty() ? replaceExtension(inputPath, extension)
                                                    : pathInFolder(inputPath, extension, options);
    if (options.overwrite)
        return output;
    for (int i = 1; isTaken(output); ++i) {
        QString base = withoutExtension(output);
        if (i > 1)
            base.truncate(base.lastIndexOf(u'-'));
        output = base + u'-' + QString::number(i) + u'.' + extension;
    }
    m_given.insert(identityOf(output));
    return output;
}

bool OutputNaming::isTaken(const QString &path) const {
    return QFileInfo::exists(path) || m_given.contains(identityOf(path));
}

#include "cli/OutputNaming.h"

#include "frontends/FileBackends.h"
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

// Formats that can only be read are saved as TIFF.
QString writtenExtension(const QString &extension) {
    const FileFormats &formats = fileFormats();
    const QString lower = extension.toLower();
    return formats.readable.contains(lower) && !formats.writable.contains(lower) ? u"tif"_s : extension;
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
    const QString written = writtenExtension(extension);
    QString output = options.outputFolder.isEmpty() ? replaceExtension(inputPath, written)
                                                    : pathInFolder(inputPath, written, options);
    bool mayReplace = options.overwrite && written == extension;
    const auto isTaken = [&] {
        const QString identity = identityOf(output);
        if (m_given.contains(identity))
            return true;
        if (!mayReplace)
            return QFileInfo::exists(output);
        return m_inputs.contains(identity) && identity != identityOf(inputPath);
    };
    for (int i = 1; isTaken(); ++i) {
        QString base = withoutExtension(output);
        if (i > 1)
            base.truncate(base.lastIndexOf(u'-'));
        output = base + u'-' + QString::number(i) + u'.' + written;
        mayReplace = false;
    }
    reserve(output);
    return output;
}

void OutputNaming::setInputs(const QStringList &inputs) {
    m_inputs.clear();
    for (const QString &input : inputs)
        m_inputs.insert(identityOf(input));
}

void OutputNaming::reserve(const QString &path) {
    m_given.insert(identityOf(path));
}

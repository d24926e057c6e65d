#include "PbIconSource.h"

#include "PbIconProvider.h"

using namespace Qt::StringLiterals;

// Not the plug-in's `initializeEngine`: a plug-in linked in statically gets that call for the first
// engine of a process only.
PbIconSource *PbIconSource::create(QQmlEngine *engine, QJSEngine *) {
    engine->addImageProvider(PbIconProvider::name(), new PbIconProvider);
    return new PbIconSource;
}

QUrl PbIconSource::tinted(const QUrl &file, const QColor &color) const {
    if (file.isEmpty())
        return {};
    return QUrl(u"image://%1/%2/%3"_s.arg(PbIconProvider::name(), color.name(QColor::HexArgb).mid(1),
                                          file.toString()));
}

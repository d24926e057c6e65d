#pragma once

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QUrl>

// Addresses of tinted icons for `Image.source`. Each engine that asks gets the provider behind them.
class PbIconSource : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    static PbIconSource *create(QQmlEngine *engine, QJSEngine *);

    // Empty for an empty `file`.
    Q_INVOKABLE QUrl tinted(const QUrl &file, const QColor &color) const;

private:
    PbIconSource() = default; // private, or the engine would prefer it to `create`
};

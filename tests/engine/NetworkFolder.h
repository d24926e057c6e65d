#pragma once

#include "TinyOnnx.h"

#include <QTemporaryDir>

/// A folder of model definitions with networks made for a test.
class NetworkFolder {
public:
    /// The folder, for the engine's catalogue.
    QString path() const { return m_directory.path(); }
    QString file(const QString &name) const {
        return m_directory.filePath(QStringLiteral("networks/") + name);
    }

    void write(const QString &name, const QByteArray &bytes) const;
    /// A definition with one parameter for each role, named like it, from 0 to 1.
    void define(const QString &category, const QString &model, const QByteArray &operation,
                const QList<QByteArray> &roles, const QByteArray &networks) const;
    /// A file `<name>.onnx` of this shape, and a definition of the same name that restores: its
    /// conditions are those of `roles`, its halo is the exact one less `shortfall`.
    void defineRestorer(const QString &name, const TinyOnnx::Shape &shape, int shortfall = 0) const;
    /// A model of the category Enhance with a file for each scale.
    void defineEnhancer(const QString &name, TinyOnnx::Shape shape, const QList<int> &scales) const;

private:
    QTemporaryDir m_directory;
};

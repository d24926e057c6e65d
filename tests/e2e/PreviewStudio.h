#pragma once

#include "frontends/TEngineController.h"
#include "frontends/TImageReader.h"
#include "model/TControls.h"

#include <QJSEngine>
#include <QJSValue>

#include <string>
#include <vector>

/// The window without its screen: model, reader and engine joined as there, over the real back ends.
class PreviewStudio {
public:
    explicit PreviewStudio(const QString &picture);

    /// One filter of the picture's stack, every parameter in the middle of its range.
    void add(const QString &name, const QString &category, const QString &model);
    void clear();

    /// Processes a region as the scheduler asks for it.
    QVariantMap preview(const QRectF &region);
    /// Processes a region as an export does.
    QVariantMap exported(const QRectF &region);

    QSize size() const;
    QVariantMap catalogue() const { return m_engine.modelParamInfo(); }
    QVariantMap input() const { return m_reader.imagedata(); }
    /// A file as the reader gives it.
    static QVariantMap read(const QString &file);

private:
    QVariantMap run(const QRectF &region);

    TControls m_controls;
    TImageReader m_reader;
    TEngineController m_engine;
};

/// What a person looks at: a zoom and a place, by the rules with which the viewport chooses its region.
struct Look {
    std::string name;
    double zoom;
    QPointF place; ///< of the scroll range, 0 to 1
    QRectF crop = {0, 0, 1, 1};
    double rotation = 0; ///< radians
};

class Viewport {
public:
    Viewport();
    QRectF region(const Look &look, const QSize &picture, const QSizeF &view);

private:
    QJSEngine m_script;
    QJSValue m_rules;
};

/// Whether the pixels of one result are those of another, wider one at the same place; empty when they are.
std::string differenceOf(const QVariantMap &part, const QVariantMap &whole);

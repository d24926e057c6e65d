#pragma once

#include "model/TControls.h"

#include <QMetaMethod>
#include <QStringList>

#include <functional>
#include <string>

/// Notes the names of all signals of a model in the order in which they fire, without "Changed".
class SignalRecorder : public QObject {
    Q_OBJECT
public:
    explicit SignalRecorder(TControls &controls);
    /// The names since the last call, joined by blanks.
    std::string take();

private Q_SLOTS:
    void note();

private:
    TControls &m_controls;
    QStringList m_names;
};

/// The texts that `run` logs at critical level.
QStringList criticalMessages(const std::function<void()> &run);

/// What a switch of the current image fires, with and without the index itself.
inline const std::string WholeSet =
    "currentControls subjectSettings currentImageData currentImage currentCategory currentModel currentGui "
    "hasS3UploadableImages isRaw areFiltersEnabled";
inline const std::string Switch = "currentIndex " + WholeSet + " editHistory";
inline const std::string Propagated = "currentControls hasS3UploadableImages areFiltersEnabled";

QVariantMap json(const char *text);
QVariantMap testCatalogue();
/// A model with the catalogue and "/a.jpg", "/b.jpg", "/c.nef"; the first is current.
struct ThreeImages : TControls {
    ThreeImages();
};
/// Puts an enabled filter of the category on the current image and at the end of its order.
void addFilter(TControls &controls, const QString &filterName, const QString &category,
               const QVariantMap &params = {});
int changes(const TControls &controls);
QVariantMap filterOf(const TControls &controls, const QString &filterName, qint64 index = 0);

using C = TControls &;

/// What an operation does to the current image's record: nothing, `changesCount` goes up by one,
/// or a change is marked, which also ends "just saved".
enum Effect { Nothing, Counted, Marked };

/// One operation on a fresh model with three images, and the signals that it fires.
struct Operation {
    const char *name;
    std::function<void(C)> run;
    std::string fires;
    Effect effect = Nothing;
};
void checkOperations(const QList<Operation> &operations, const std::function<void(TControls &)> &prepare);

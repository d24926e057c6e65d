#pragma once

#include "contracts/Autopilot.h"
#include "contracts/ImageData.h"
#include "contracts/RunControl.h"

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QStringList>
#include <QVariantMap>

/// One picture as the engine sees it. `uid` identifies this load of this file and is the key of
/// everything the engine remembers about it.
struct EngineInput {
    QString uid;
    QString filepath;
    ImageRef image;
    QVariantMap metadata{};
    double resolution = 72;
    int resolutionUnit = 1;
    bool isRaw = false;
};

struct AutopilotOptions {
    bool regenerateMask = false;
    bool forceFaceDetect = false;
    Autopilot::Preferences preferences;
};

/// `settings`: category to { enabled, model, parameters... }, with the parameters of every installed model
/// of the category within the ranges of the catalogue. `problems`: what was measured.
/// Exactly one of: cancelled, a non-empty error, or an answer.
struct AutopilotAnswer {
    bool cancelled = false;
    QString error{};
    QVariantMap settings{};
    QVariantMap problems{};
};

/// Run the filters named in `filterOrder` over `region` (pixels of the input). `params` is a
/// controls map: filter name to { category, model, params, enabled, subjectSettings }. The names are those
/// of FilterNames.h.
struct ProcRequest {
    EngineInput input;
    QRect region{};
    QVariantMap params;
    QStringList filterOrder;
    bool full = false;
    bool exporting = false;
    bool exportIsDng = false;
    bool hotPixelCorrection = false; ///< takes lone bright pixels out of a denoised camera file
};

/// `image` covers `region` of the input at `scale` output pixels per input pixel.
/// Exactly one of: cancelled, a non-empty error, or an image.
struct ProcResult {
    bool cancelled = false;
    QString error{};
    std::shared_ptr<ImageData> image{};
    QRect region{};
    double scale = 1;
};

/// Masks of an image's subjects: subject name to the identity of its mask, and identity to mask
/// (an image entry). Both empty when the engine knows no subjects.
struct SubjectMasks {
    QVariantMap hashes;
    QVariantMap textures;
};

/// All that passes between the program and the pixel work. Called on worker threads
/// of the front end, one call at a time unless stated; never throws.
class ProcessingBackend {
public:
    virtual ~ProcessingBackend() = default;

    /// Category to model to { gui: { parameters: { name: { default, min, max } } } }, read from
    /// the definition files in the directory; empty when there are none. Only models that can be run are
    /// there; a flag has a default of true or false and no range. The others wait for a call under way.
    virtual QVariantMap catalogue(const QString &modelDirectory) = 0;

    /// May run while process() runs on another thread.
    virtual AutopilotAnswer analyse(const EngineInput &input, const AutopilotOptions &options,
                                    const RunControl &control) = 0;

    virtual ProcResult process(const ProcRequest &request, const RunControl &control) = 0;

    /// Forgets cached intermediate results; an empty uid forgets those of every image.
    virtual void clearCache(const QString &uid) = 0;

    /// Selections. These take turns with analyse() and may run while process() runs. An engine
    /// without them answers with nothing, as here; so does one that is asked to stop.
    virtual SubjectMasks subjectMasks(const EngineInput &, const QVariantMap & /*subjectSettings*/,
                                      const RunControl &) {
        return {};
    }
    /// What a click at `position` (input pixels) would select.
    virtual std::shared_ptr<ImageData> hoverMask(const EngineInput &, const QVariantMap & /*subjectSettings*/,
                                                 const QPointF & /*position*/, const RunControl &) {
        return nullptr;
    }
    /// `grain` from 0 to 1, the size of the superpixels.
    virtual std::shared_ptr<ImageData> superpixels(const EngineInput &, double /*grain*/,
                                                   const RunControl &) {
        return nullptr;
    }
    /// Input pixels around what `selection` (subject settings with strokes) covers.
    virtual QRectF boundingBox(const EngineInput &, const QVariantMap & /*selection*/, const RunControl &) {
        return {};
    }
    /// Prepares selecting in this image, so that the first hover is quick.
    virtual void warmSelection(const EngineInput &, const RunControl &) {}
};

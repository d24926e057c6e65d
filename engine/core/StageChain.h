#pragma once

#include "contracts/RunControl.h"
#include "engine/core/Stage.h"
#include "engine/core/StageCache.h"

#include <vector>

/// The stages of one run, in order, over one picture.
class StageChain {
public:
    explicit StageChain(const ImageRef &image);

    /// `settings` identifies everything that the stage's output depends on besides its input.
    void append(std::unique_ptr<Stage> stage, const QByteArray &settings);

    bool isEmpty() const { return m_links.empty(); }
    /// Size of the whole picture behind the last stage.
    QSize outputSize() const { return m_sizes.back(); }
    double scale() const;

    struct Settings {
        QString uid;
        int threads = 1;
        int tileSide = 0;
        StageCache *cache = nullptr;
        bool keep = true; ///< whether intermediate results go into the cache
    };
    /// Exactly one of: cancelled, an error, an image in the depth of the input.
    struct Outcome {
        bool cancelled = false;
        QString error;
        std::shared_ptr<ImageData> image;
    };
    /// `region` in pixels of the input picture, inside it.
    Outcome run(const TRect &region, const Settings &settings, const RunControl &control) const;

private:
    struct Link {
        std::unique_ptr<Stage> stage;
        QByteArray stack; ///< the settings of this stage and all before it
    };
    struct Part {
        ImageRef image;
        TRect covered;
    };
    struct Progress {
        double done = 0;
        double total = 0;
    };

    std::vector<TRect> neededRegions(const TRect &region) const;
    Outcome runStage(std::size_t i, const Part &input, const TRect &area, SampleType type,
                     const Settings &settings, const RunControl &control, const Progress &progress) const;
    double work(std::size_t i, const TRect &area) const;

    ImageRef m_image;
    std::vector<Link> m_links;
    std::vector<QSize> m_sizes; ///< of the input and behind each stage
};

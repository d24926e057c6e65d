#pragma once

#include "model/CategoryNames.h"
#include "model/EditHistory.h"
#include "model/EnhanceLimits.h"
#include "model/OrderedSet.h"
#include "model/TImageSettings.h"

#include <QHash>
#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QStringList>
#include <QtQmlIntegration/qqmlintegration.h>

/// The open images and everything decided about each: filters, models, parameters, order, Autopilot,
/// subjects, crop. Readers hand out maps built on each read; every operation fires its signals by hand.
///
/// An argument called `category` is a filter name ("Denoise2") unless there is a `filterName` beside it.
/// "The current image" without one is a default record under the empty path. An empty `imagePath`
/// means the current image where nothing else is said. A bad index is logged and changes nothing.
/// Lives on the GUI thread.
class TControls : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        QVariantMap modelParamInfo READ modelParamInfo WRITE setModelParamInfo NOTIFY modelParamInfoChanged)
    Q_PROPERTY(QString defaultSubjectType READ defaultSubjectType WRITE setDefaultSubjectType)
    Q_PROPERTY(QVariantList currentInpaintStrokes READ currentInpaintStrokes WRITE setCurrentInpaintStrokes
                   NOTIFY currentInpaintStrokesChanged)
    Q_PROPERTY(QStringList loadedImages READ loadedImages NOTIFY loadedImagesChanged)
    Q_PROPERTY(
        QList<int> selectedImages READ selectedImages WRITE setSelectedImages NOTIFY selectedImagesChanged)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)
    Q_PROPERTY(QVariantMap currentControls READ currentControls NOTIFY currentControlsChanged)
    Q_PROPERTY(QVariantMap subjectSettings READ subjectSettings NOTIFY subjectSettingsChanged)
    Q_PROPERTY(QVariantMap currentImageData READ currentImageData NOTIFY currentImageDataChanged)
    Q_PROPERTY(QString currentImage READ currentImage NOTIFY currentImageChanged)
    Q_PROPERTY(QString currentCategory READ currentCategory NOTIFY currentCategoryChanged)
    Q_PROPERTY(QString currentModel READ currentModel NOTIFY currentModelChanged)
    Q_PROPERTY(QVariantMap currentGui READ currentGui NOTIFY currentGuiChanged)
    Q_PROPERTY(bool isRaw READ isRaw NOTIFY isRawChanged)
    Q_PROPERTY(bool hasS3UploadableImages READ hasS3UploadableImages NOTIFY hasS3UploadableImagesChanged)
    Q_PROPERTY(bool areFiltersEnabled READ areFiltersEnabled NOTIFY areFiltersEnabledChanged)
    Q_PROPERTY(QStringList filterOrder READ filterOrder WRITE setFilterOrder NOTIFY filterOrderChanged)
    Q_PROPERTY(QVariantMap modelNames READ modelNames NOTIFY modelNamesChanged)
    Q_PROPERTY(CategoryNames categories READ categories CONSTANT)
    Q_PROPERTY(QStringList processingOrder READ processingOrder CONSTANT)
    Q_PROPERTY(double ENHANCE_SCALE_MIN READ enhMinScale CONSTANT)
    Q_PROPERTY(int ENHANCE_PIXEL_MAX READ enhMaxPx CONSTANT)
    Q_PROPERTY(QList<QVariantMap> autoPilotSuggestionOrder READ autoPilotSuggestionOrder WRITE
                   setAutoPilotSuggestionOrder NOTIFY autoPilotSuggestionOrderChanged)
    Q_PROPERTY(int currentChanges READ currentChanges NOTIFY currentControlsChanged)
    Q_PROPERTY(int advicesHeard READ advicesHeard NOTIFY autoPilotCalculated)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY editHistoryChanged)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY editHistoryChanged)

public:
    explicit TControls(QObject *parent = nullptr);

    // The current image
    int currentIndex() const { return int(m_currentIndex); }
    QString currentImage() const { return pathAt(m_currentIndex); }
    QVariantMap currentControls() const;
    /// One filter's entry of currentControls, and Autopilot's of a category; empty when there is none. A map
    /// of everything is dear to hand to a document, and a slider asks for one with every move. A binding on
    /// `currentChanges`, or on `currentImage` and `advicesHeard`, is told when to ask again.
    Q_INVOKABLE QVariantMap currentFilter(const QString &filterName) const;
    Q_INVOKABLE QVariantMap advisedFilter(const QString &category) const;
    /// A TImageSettings::AutoPilotStatus.
    Q_INVOKABLE int autoPilotStatus() const { return currentSettings().autoPilot; }
    /// Whether Autopilot has answered about the current image and would put nothing on it.
    Q_INVOKABLE bool isFineAsItIs() const;
    int currentChanges() const { return currentSettings().changesCount; }
    int advicesHeard() const { return m_advicesHeard; }
    QVariantMap currentImageData() const;
    QString currentCategory() const { return m_currentCategory; }
    QString currentModel() const;
    /// The "gui" map of the current model, looked up by `currentCategory`.
    QVariantMap currentGui() const;
    bool isRaw() const;

    // The list of images and the selection
    QStringList loadedImages() const { return m_loadedImages.list(); }
    QList<int> selectedImages() const { return m_selectedImages.list(); }
    /// Opens the paths that are not open yet and makes the first new one current, or the first that
    /// was open already when none is new.
    Q_INVOKABLE void loadImages(const QStringList &urls, bool dontSwitchImages = false);
    /// Leaves the current index and the other selected indices as they are.
    Q_INVOKABLE void closeImage(qint64 index);
    Q_INVOKABLE void closeSelectedImages();
    Q_INVOKABLE void reset();
    Q_INVOKABLE void setCurrentIndex(qint64 index, bool forceUpdate = false);
    Q_INVOKABLE void setSelectedImages(const QList<int> &files);
    Q_INVOKABLE void cleanupThumbnails();
    Q_INVOKABLE QVariantMap getControls(qint64 index) const;
    Q_INVOKABLE QVariantMap getImageData(qint64 index) const;
    /// That of every open image, in their order.
    Q_INVOKABLE QVariantList allImageData() const;
    Q_INVOKABLE void setThumbnail(qint64 index, const QString &thumbnail);
    /// The number of image records.
    Q_INVOKABLE int size() const { return int(m_imageSettings.size()); }
    /// -1 for a path that isn't open.
    Q_INVOKABLE int indexOf(const QString &imagePath) const;
    Q_INVOKABLE void setJustSaved(qint64 index);
    /// A RAW file, by its complete suffix, of less than 70 MiB.
    Q_INVOKABLE bool isFileUploadable(const QString &imagePath) const;
    bool hasS3UploadableImages() const;

    // Filters of the current image
    /// Makes the filter active, too. An empty model is ignored.
    Q_INVOKABLE void setModel(const QString &category, const QString &model);
    Q_INVOKABLE void setActiveCategory(const QString &category);
    /// Writes one parameter, or "enabled"; creates a filter that doesn't exist. True when it changed.
    Q_INVOKABLE bool setParam(const QString &category, const QString &key, const QVariant &value);
    Q_INVOKABLE bool setParams(const QString &category, const QVariantMap &params);
    Q_INVOKABLE bool removeKeyFromControlParams(const QString &category, const QString &key);
    /// Leaves the filter order alone; the caller sets the new one.
    Q_INVOKABLE bool removeFilterControl(const QString &category);
    /// Puts a new disabled filter with the category's first model and its defaults, over any filter
    /// of that name. Needs a catalogue; without one model and parameters stay empty.
    Q_INVOKABLE void initializeFilter(const QString &filterName, const QString &category);
    Q_INVOKABLE QStringList filterOrder() const;
    Q_INVOKABLE QStringList getFilterOrder(int index) const;
    /// Stores any order. Fires even when nothing changed: callers use it to ask for a new preview.
    Q_INVOKABLE void setFilterOrder(const QStringList &order, const QString &imagePath = QString());
    Q_INVOKABLE void propagateControlChanges();
    bool areFiltersEnabled() const { return areFiltersEnabledForImage(m_currentIndex); }
    Q_INVOKABLE bool areFiltersEnabledForImage(qint64 index) const;
    Q_INVOKABLE QString getFilterNamesForFilename(qint64 index) const;
    Q_INVOKABLE double enhMinScale() const { return EnhanceLimits::ScaleMin; }
    Q_INVOKABLE int enhMaxPx() const { return EnhanceLimits::PixelMax; }
    /// Strokes drawn with the Inpaint tool and not applied yet, one list for the whole model.
    Q_INVOKABLE QVariantList currentInpaintStrokes() const { return m_currentInpaintStrokes; }
    Q_INVOKABLE void setCurrentInpaintStrokes(const QVariantList &strokes);

    // From one image to another
    /// Merges filter entries, and reads "autoPilot" for the status: 0 is off.
    Q_INVOKABLE void setControls(qint64 index, const QVariantMap &controls, bool forceChanged = false);
    /// Lays the current image's filters on another image. Without `allowEmit` nothing fires and the
    /// target keeps its old order. An empty path is refused.
    Q_INVOKABLE bool applyCurrentControlsToImage(const QString &imagePath, bool allowEmit = true);
    /// An empty path matches.
    Q_INVOKABLE bool doCurrentControlsMatchImage(const QString &imagePath) const;

    // From a preset, or from a host
    /// Adds a preset's filters to what an open image has, and gives a warning `{ title, message }` about what
    /// could not be applied, or an empty map. Without `allowEmit` nothing fires; the caller propagates.
    /// Filters that `controls` lacks or that have no model in the catalogue are passed over, and what the
    /// catalogue doesn't allow is clamped or left out, with a line each in the log.
    Q_INVOKABLE QVariantMap applyPresetToImage(const QString &imagePath, const QVariantMap &controls,
                                               const QStringList &filterOrder, bool resizingSupported,
                                               bool allowEmit = true);
    /// The same check for the filters of a controls map that came from elsewhere; other entries stay.
    Q_INVOKABLE QVariantMap boundedControls(const QVariantMap &controls) const;
    /// RAW first, Enhance last, no name twice; the others keep their places.
    Q_INVOKABLE QStringList normalisedOrder(const QStringList &order) const;

    // Undo and redo of the current image: its filters, their order and its crop, but not what Autopilot
    // answered. The caller says where a step ends; an image has a history once recordEdit or forgetEdits
    // was called for it, and loses it when it is closed.
    /// Makes a step of what changed since the last recorded state, if anything did, and clears redo. The
    /// first call for an image takes its state as the start.
    Q_INVOKABLE void recordEdit();
    /// Takes the present state for the last recorded one, without a step: for what the program derives
    /// itself.
    Q_INVOKABLE void amendEdit();
    /// Starts anew from the present state.
    Q_INVOKABLE void forgetEdits();
    /// The image is looked at again: its history goes on where it still ends in the present state, and starts
    /// anew where something else has changed the image since.
    Q_INVOKABLE void startEdits();
    /// These two record what is pending first. False when there is nothing to undo or redo.
    Q_INVOKABLE bool undoEdit();
    Q_INVOKABLE bool redoEdit();
    /// About recorded steps; what is pending is not looked at.
    bool canUndo() const;
    bool canRedo() const;

    // Crop and resolution of the current image; they don't make a preview stale
    Q_INVOKABLE QRectF cropRoi() const; ///< fractions of the image
    Q_INVOKABLE double rotation() const;
    Q_INVOKABLE void setCrop(const QRectF &cropRoi, double rotation);
    Q_INVOKABLE void setCropRatio(const QSizeF &cropRatio);
    Q_INVOKABLE void setResolution(float resolution);

    // The vocabulary of filters
    CategoryNames categories() const { return {}; }
    /// The categories that Autopilot puts on a picture, in the order in which they run.
    QStringList processingOrder() const { return Categories::processingOrder(); }

    // The catalogue of models, from the engine
    QVariantMap modelParamInfo() const { return m_modelParamInfo; }
    Q_INVOKABLE void setModelParamInfo(const QVariantMap &modelParamInfo);
    QVariantMap modelNames() const { return m_modelNames; }
    /// Category to model to parameters: what a new filter starts with.
    QVariantMap defaultParams() const { return m_defaultParams; }

    // Autopilot
    /// All that follows an analysis of the current image: the status goes to On, the answer is stored, and
    /// with `addFilters` the image gets its first filters: all that is recommended, or with
    /// `recommendFilters` false RAW alone, and only for a RAW file. An image that has them keeps what it has,
    /// unless Autopilot was applied before there was an answer. Ends with one filterOrderChanged where
    /// filters are added.
    Q_INVOKABLE void landAutopilot(const QVariantMap &answer, bool recommendFilters, bool addFilters);
    /// Replaces all filters of the current image by the recommended ones, in the order in which they are run.
    Q_INVOKABLE void applyRecommendedFilters();
    Q_INVOKABLE void setAutopilotSettings(const QVariantMap &settings);
    Q_INVOKABLE void setAutoPilotStatus(TImageSettings::AutoPilotStatus status);
    Q_INVOKABLE void applyAutopilotToImage();
    Q_INVOKABLE void applyAutopilotToImage(const QString &imagePath, bool allowEmit = true);
    /// Appends the category to the order, too, even a second time.
    Q_INVOKABLE void resetToAuto(const QString &category);
    /// For numbered filters; leaves the order alone.
    Q_INVOKABLE void resetToAuto(const QString &filterName, const QString &category);
    Q_INVOKABLE bool isAutopilotCalculated(const QString &imagePath) const;
    Q_INVOKABLE bool isModifiedFromAutopilot(const QString &imagePath) const;
    Q_INVOKABLE bool isModifiedFromAutopilot(const QString &filterName, const QString &category) const;
    Q_INVOKABLE void markInitialFiltersApplied();
    Q_INVOKABLE void resetManualAPCheck();
    Q_INVOKABLE QList<QVariantMap> autoPilotSuggestionOrder() const;
    Q_INVOKABLE QList<QVariantMap> getAutoPilotSuggestionOrder(int index) const;
    Q_INVOKABLE void setAutoPilotSuggestionOrder(const QList<QVariantMap> &order,
                                                 const QString &imagePath = QString());

    // Subjects of the current image's filters
    QString defaultSubjectType() const { return m_defaultSubjectType; }
    Q_INVOKABLE void setDefaultSubjectType(const QString &type);
    QVariantMap subjectSettings() const { return getSubjectSettings(m_currentCategory); }
    Q_INVOKABLE QVariantMap getSubjectSettings(const QString &filterName) const;
    /// Counts every call with at least one key as a change.
    Q_INVOKABLE void setSubjectSettings(const QString &filterName, const QVariantMap &settings);
    Q_INVOKABLE void initializeSubject(const QString &category);
    Q_INVOKABLE bool isSubjectModified(const QString &imageUrl) const;

    // Measured levels of the current image. QML has plain numbers; one that is no level is unknown.
    Q_INVOKABLE void setNoiseLevel(int level);
    Q_INVOKABLE void setBlurLevel(int level);

public Q_SLOTS:
    void setNoiseLevel(Autopilot::Level level);
    void setBlurLevel(Autopilot::Level level);

Q_SIGNALS:
    void loadedImagesChanged();
    void imagesOpened(const QStringList &imagePaths);
    void imagesClosed(int total);
    void selectedImagesChanged();
    void currentIndexChanged();
    void imageDataChanged(quint64 index);
    void currentImageDataChanged();
    void currentControlsChanged();
    void subjectSettingsChanged(const QVariantMap &subjectSettings);
    void currentImageChanged();
    void currentCategoryChanged();
    void currentModelChanged();
    void currentGuiChanged();
    void hasS3UploadableImagesChanged();
    void isRawChanged();
    void areFiltersEnabledChanged();
    void filterOrderChanged();
    void currentInpaintStrokesChanged();
    void modelParamInfoChanged();
    void modelNamesChanged();
    void autoPilotCalculated(const QString &path);
    void autoPilotApplied(const QString &path);
    void autoPilotSuggestionOrderChanged();
    void editHistoryChanged();

private:
    QString pathAt(qint64 index) const;
    QString orCurrent(const QString &imagePath) const;
    /// Creates the record of an unknown path; the const one gives a default record.
    TImageSettings &settingsOf(const QString &path) { return m_imageSettings[path]; }
    TImageSettings settingsOf(const QString &path) const { return m_imageSettings.value(path); }
    TImageSettings &currentSettings() { return settingsOf(currentImage()); }
    TImageSettings currentSettings() const { return settingsOf(currentImage()); }

    void addFirstFilters(bool recommendFilters);
    /// These two give the order that goes with what they put on, which stays to be set.
    QStringList adoptRecommendedFilters();
    QStringList addRawFilter();
    /// Everything that hangs on the current image.
    void emitCurrentImageSignals();
    void emitParamSignals(bool enabledToo);
    void forget(const QString &path, const QStringList &recentFiles);
    void storeInCurrentImageData(const QVariantMap &entries);
    /// A disabled filter of the category with its first model and that one's defaults.
    TCategorySettings startOf(const QString &category) const;
    void addFromPreset(TImageSettings &settings, const QString &filterName, const QString &category,
                       const QVariantMap &filter);
    QVariantMap bounded(const QVariantMap &filter, const QString &ownModel = QString()) const;
    EditState currentEdits() const;
    bool moveThroughEdits(std::optional<EditState> (EditHistory::*move)());
    void restoreEdits(const EditState &state);

    QVariantMap m_modelParamInfo;
    QString m_defaultSubjectType;
    QVariantMap m_modelNames;
    QVariantMap m_defaultParams;
    OrderedSet<QString> m_loadedImages;
    OrderedSet<int> m_selectedImages;
    QMap<QString, TImageSettings> m_imageSettings;
    QMap<QString, QVariantMap> m_imageData;
    QHash<QString, EditHistory> m_editHistories; ///< by path; of images that are open
    QStringList m_viewOrder;                     ///< the most recently viewed last
    qint64 m_currentIndex = -1;
    int m_advicesHeard = 0;
    QString m_currentCategory;
    QVariantList m_currentInpaintStrokes;
};

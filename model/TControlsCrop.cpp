#include "model/TControls.h"

using namespace Qt::StringLiterals;

QRectF TControls::cropRoi() const {
    return currentImageData().value(u"cropRoi"_s).toRectF();
}

double TControls::rotation() const {
    return currentImageData().value(u"rotation"_s).toDouble();
}

void TControls::storeInCurrentImageData(const QVariantMap &entries) {
    const auto data = m_imageData.find(currentImage());
    if (data == m_imageData.end())
        return;
    data->insert(entries);
    Q_EMIT currentImageDataChanged();
    Q_EMIT imageDataChanged(quint64(m_currentIndex));
}

void TControls::setCrop(const QRectF &cropRoi, double rotation) {
    storeInCurrentImageData({{u"cropRoi"_s, cropRoi}, {u"rotation"_s, rotation}});
}

void TControls::setCropRatio(const QSizeF &cropRatio) {
    storeInCurrentImageData({{u"cropRatio"_s, cropRatio}});
}

void TControls::setResolution(float resolution) {
    storeInCurrentImageData({{Params::Resolution, resolution}});
}

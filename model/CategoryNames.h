#pragma once

#include "contracts/FilterNames.h"

#include <QObject>
#include <QtQmlIntegration>

/// The names of the categories for QML: `controls.categories.raw`.
struct CategoryNames {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString denoise MEMBER denoise CONSTANT)
    Q_PROPERTY(QString raw MEMBER raw CONSTANT)
    Q_PROPERTY(QString sharpen MEMBER sharpen CONSTANT)
    Q_PROPERTY(QString enhance MEMBER enhance CONSTANT)
    Q_PROPERTY(QString faceRecovery MEMBER faceRecovery CONSTANT)
    Q_PROPERTY(QString textRecovery MEMBER textRecovery CONSTANT)
    Q_PROPERTY(QString exposure MEMBER exposure CONSTANT)
    Q_PROPERTY(QString whiteBalance MEMBER whiteBalance CONSTANT)
    Q_PROPERTY(QString inpaint MEMBER inpaint CONSTANT)

public:
    QString denoise = Categories::Denoise;
    QString raw = Categories::Raw;
    QString sharpen = Categories::Sharpen;
    QString enhance = Categories::Enhance;
    QString faceRecovery = Categories::FaceRecovery;
    QString textRecovery = Categories::TextRecovery;
    QString exposure = Categories::Exposure;
    QString whiteBalance = Categories::WhiteBalance;
    QString inpaint = Categories::Inpaint;
};

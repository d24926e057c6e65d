#pragma once

#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

/// Ends the press that Qt makes up from a pen: a lift of the pen does not always end it, which would
/// leave strokes and sliders hanging.
class TabletListener : public QObject {
    Q_OBJECT
    QML_ELEMENT
public:
    using QObject::QObject;

    Q_INVOKABLE
    void listenTo(QObject *object);
    bool eventFilter(QObject *watched, QEvent *event) override;
};

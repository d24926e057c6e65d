#include "PbBoundProperty.h"

#include <QLoggingCategory>
#include <QMetaProperty>

void PbBoundProperty::write(QObject *target, const QString &property, const QVariant &value) const {
    const QMetaObject *meta = target ? target->metaObject() : nullptr;
    const int index = meta ? meta->indexOfProperty(property.toUtf8().constData()) : -1;
    if (index < 0 || !meta->property(index).write(target, value))
        qWarning("PebbleUI: property \"%ls\" cannot be written", qUtf16Printable(property));
}

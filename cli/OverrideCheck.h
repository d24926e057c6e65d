#pragma once

#include <QPair>
#include <QStringList>
#include <QVariantMap>

/// One setting of a category as it was written: key and value.
using Override = QPair<QString, QString>;

Override parseOverride(const QString &text);

/// What the overrides of a category ask for that isn't there, a sentence each, with what is there instead.
/// `filter` is the filter with the overrides applied, `models` the category's part of the catalogue.
QStringList overrideProblems(const QString &category, const QVariantMap &filter, const QVariantMap &models,
                             const QList<Override> &overrides);

#pragma once

#include <QJsonArray>
#include <QList>
#include <QMap>
#include <QString>

/// One weight file of a model and how the model's parameters steer it.
struct NetworkDefinition {
    /// The value of one condition: a sum of what each role gives, times its weight.
    using Condition = QMap<QString, double>;

    QString file; ///< as the definition names it: relative to the definition's folder
    QString path; ///< where that is
    int scale = 1;
    int halo = 0;             ///< pixels of the input that a pixel of the result depends on, on each side
    int tile = 512;           ///< side of a tile, pixels of the input
    QMap<QString, bool> when; ///< flags, by role, that this file is for; without any it is for all
    QList<Condition> conditions;
};

/// Reads the list `networks` of a definition; an empty list and `error` when something is wrong with it.
QList<NetworkDefinition> parseNetworks(const QJsonArray &array, QString *error);

#pragma once

#include <QString>

/// Names that several files of this room share: the keys of a filter's map, and categories.
namespace Keys {

inline const QString Category = QStringLiteral("category");
inline const QString Model = QStringLiteral("model");
inline const QString Params = QStringLiteral("params");
inline const QString Enabled = QStringLiteral("enabled");
inline const QString SubjectSettings = QStringLiteral("subjectSettings");
inline const QString AutoPilot = QStringLiteral("autoPilot");
inline const QString AutoPilotSettings = QStringLiteral("autoPilotSettings");
inline const QString Strokes = QStringLiteral("strokes");
inline const QString SelectedFaces = QStringLiteral("selectedFaces");

} // namespace Keys

namespace Categories {

inline const QString Denoise = QStringLiteral("Denoise");
inline const QString Raw = QStringLiteral("RAW");
inline const QString Sharpen = QStringLiteral("Sharpen");
inline const QString Enhance = QStringLiteral("Enhance");
inline const QString FaceRecovery = QStringLiteral("Face Recovery");
inline const QString TextRecovery = QStringLiteral("Text Recovery");
inline const QString Exposure = QStringLiteral("Exposure Adjust");
inline const QString WhiteBalance = QStringLiteral("White Balance Adjust");
inline const QString Inpaint = QStringLiteral("Inpaint");

} // namespace Categories

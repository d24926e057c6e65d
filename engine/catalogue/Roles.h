#pragma once

#include <QString>

/// The roles that a parameter can play, as definition files name them: how the operations that run a
/// model and Autopilot find it, whatever it is called in settings.
namespace Roles {

inline const QString Strength = QStringLiteral("strength"); ///< of what the category is for
inline const QString Deblur = QStringLiteral("deblur");     ///< besides
inline const QString Denoise = QStringLiteral("denoise");   ///< besides
inline const QString Detail = QStringLiteral("detail");     ///< how much of it comes back after denoising
inline const QString Grain = QStringLiteral("grain");       ///< removal of large grain
inline const QString Compression = QStringLiteral("compression");
inline const QString Lens = QStringLiteral("lens"); ///< a flag: the blur is a disc's, not a line's
inline const QString Temperature = QStringLiteral("temperature");
inline const QString Opacity = QStringLiteral("opacity");

} // namespace Roles

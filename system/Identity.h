#pragma once

#include <QString>

/// Who made this program and what it is called: the address of its settings, and the names in its
/// title, log and folders.
namespace Identity {

inline QString productName() {
    return QStringLiteral("Orvane Studio");
}
inline QString organization() {
    return QStringLiteral("Orvane Works");
}
inline QString organizationDomain() {
    return QStringLiteral("orvane.works");
}
inline QString version() {
    return QStringLiteral("3.1.2");
}

/// Gives all four to QCoreApplication. Works before and after the application object exists.
void setOnApplication();

} // namespace Identity

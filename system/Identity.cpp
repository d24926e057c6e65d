#include "system/Identity.h"

#include <QCoreApplication>

void Identity::setOnApplication() {
    QCoreApplication::setOrganizationName(organization());
    QCoreApplication::setOrganizationDomain(organizationDomain());
    QCoreApplication::setApplicationName(productName());
    QCoreApplication::setApplicationVersion(version());
}

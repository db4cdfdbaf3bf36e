#include "app/desktop/AppVersion.h"

#ifndef SULKBOX_VERSION
#define SULKBOX_VERSION ""
#endif
#ifndef SULKBOX_BUILD_NUMBER
#define SULKBOX_BUILD_NUMBER ""
#endif

namespace AppVersion {

QString shortVersion()
{
    return QStringLiteral(SULKBOX_VERSION).trimmed();
}

QString buildNumber()
{
    return QStringLiteral(SULKBOX_BUILD_NUMBER).trimmed();
}

QString text(const QString &shortVersion, const QString &buildNumber)
{
    const QString dash = QStringLiteral("\u2014");
    const QString s = shortVersion.trimmed(), b = buildNumber.trimmed();
    return (s.isEmpty() ? dash : s) + QStringLiteral(" (") + (b.isEmpty() ? dash : b) + u')';
}

QString text()
{
    return text(shortVersion(), buildNumber());
}

} // namespace AppVersion

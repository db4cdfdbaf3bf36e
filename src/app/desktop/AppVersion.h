#pragma once
// The version of this build as the About row shows it: the project version,
// then the build number in parentheses ("1.4 (27)"). Both come from the build
// (the CMake project version and the SULKBOX_BUILD_NUMBER option); a part the
// build did not set shows as "—".

#include <QString>

namespace AppVersion {

// The project version ("1.4"), or empty when the build set none.
QString shortVersion();
// The build number ("27"), or empty when the build set none.
QString buildNumber();

// "<short> (<build>)", each missing part as "—".
QString text(const QString &shortVersion, const QString &buildNumber);
QString text();

} // namespace AppVersion

#include "ui/common/QmlFormat.h"

#include "l10n/Fmt.h"
#include "l10n/Localizer.h"

#include <cmath>

QString QmlFormat::bytes(double v, int decimals) const { return Fmt::bytes(v, decimals); }
QString QmlFormat::rate(double v, int decimals) const { return Fmt::rate(v, decimals); }
QString QmlFormat::percent(double v, int decimals) const { return Fmt::percent(v, decimals); }
QString QmlFormat::watts(double v) const { return Fmt::watts(v); }
QString QmlFormat::minutes(int m) const { return Fmt::minutes(m); }
QString QmlFormat::fixed(double v, int decimals) const { return Fmt::fixed(v, decimals); }
QColor QmlFormat::loadColor(double f) const { return ::loadColor(f); }

QString QmlFormat::temp(double celsius, bool fahrenheit) const
{
    Q_UNUSED(fahrenheit) // the argument only ties the binding to the setting
    return Fmt::temp(celsius);
}

QString QmlFormat::fill(const QString &format, const QStringList &args) const
{
    return Localizer::fill(format, args);
}

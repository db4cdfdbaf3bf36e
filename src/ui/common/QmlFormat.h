#pragma once
// The number-to-text rules and the load colour for QML, as the context
// property `fmt`. Temperatures take the unit as an argument
// (`fmt.temp(c, appSettings.useFahrenheit)`), so a binding follows the
// setting at once.

#include "ui/common/LoadColor.h"

#include <QColor>
#include <QObject>
#include <QStringList>

class QmlFormat : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    Q_INVOKABLE QString bytes(double v, int decimals) const;
    // Bytes per second: bytes with the given decimals, then "/s".
    Q_INVOKABLE QString rate(double v, int decimals) const;
    Q_INVOKABLE QString percent(double v, int decimals) const;
    Q_INVOKABLE QString watts(double v) const;
    Q_INVOKABLE QString temp(double celsius, bool fahrenheit) const;
    Q_INVOKABLE QString minutes(int m) const;
    Q_INVOKABLE QString fixed(double v, int decimals) const;
    Q_INVOKABLE QColor loadColor(double f) const;
    // Fills each "%@" of `format` in order.
    Q_INVOKABLE QString fill(const QString &format, const QStringList &args) const;
};

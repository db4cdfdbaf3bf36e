#include "ui/common/QmlTexts.h"

#include "l10n/Localizer.h"

QmlTexts::QmlTexts(Localizer &loc, QObject *parent)
    : QQmlPropertyMap(this, parent)
    , m_loc(loc)
{
    refill();
    connect(&loc, &Localizer::languageChanged, this, &QmlTexts::refill);
}

void QmlTexts::refill()
{
    for (LocKey key : allLocKeys()) {
        const QString name = keyName(key);
        const QString text = m_loc.t(key);
        // insert() only announces through valueChanged for QML-side writes;
        // updateValue() is not public, so compare and announce ourselves.
        if (value(name).toString() != text || !contains(name)) {
            insert(name, text);
            emit valueChanged(name, text);
        }
    }
}

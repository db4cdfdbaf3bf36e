#pragma once
// Every interface text as a property of one map, named after its key:
// `texts.memory`, `texts.installedFmt`. A binding that reads `texts.x`
// follows the interface language by itself, because the map announces each
// text it replaces when the language changes. Texts with "%@" are filled
// with `fmt.fill(texts.freedFmt, [arg])`.

#include <QQmlPropertyMap>

class Localizer;

class QmlTexts : public QQmlPropertyMap {
    Q_OBJECT
public:
    explicit QmlTexts(Localizer &loc, QObject *parent = nullptr);

private:
    void refill();
    Localizer &m_loc;
};

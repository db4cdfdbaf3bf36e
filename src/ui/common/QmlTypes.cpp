#include "ui/common/QmlTypes.h"

#include "l10n/LocKey.h"
#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "personality/Mood.h"
#include "personality/Roasts.h"
#include "settings/AppSettings.h"
#include "ui/panel/PanelTypes.h"

#include <QQmlEngine>

namespace QmlTypes {

void registerAll()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    const char *uri = "Sulkbox";
    // Enums, used as LocKey.memory, RoastTopic.cpu, AppLanguage.ja, MoodKind.hot.
    qmlRegisterUncreatableMetaObject(LocKeys::staticMetaObject, uri, 1, 0, "LocKey", QStringLiteral("enum"));
    qmlRegisterUncreatableMetaObject(RoastTopics::staticMetaObject, uri, 1, 0, "RoastTopic", QStringLiteral("enum"));
    qmlRegisterUncreatableMetaObject(AppLanguages::staticMetaObject, uri, 1, 0, "AppLanguage", QStringLiteral("enum"));
    qmlRegisterUncreatableMetaObject(MoodKinds::staticMetaObject, uri, 1, 0, "MoodKind", QStringLiteral("enum"));
    qmlRegisterUncreatableType<SystemMonitor>(uri, 1, 0, "SystemMonitor", QStringLiteral("the one model"));
    qmlRegisterUncreatableType<AppSettings>(uri, 1, 0, "AppSettings", QStringLiteral("AppSettings::shared()"));
    qmlRegisterUncreatableType<Localizer>(uri, 1, 0, "Localizer", QStringLiteral("Localizer::shared()"));
    PanelTypes::registerAll();
}

} // namespace QmlTypes

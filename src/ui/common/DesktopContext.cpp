#include "ui/common/DesktopContext.h"

#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "ui/common/QmlTypes.h"

#include <QQmlContext>

namespace DesktopContext {

void install(QQmlContext *context, SystemMonitor *monitor, AppSettings *settings, Localizer *loc, QObject *app)
{
    QmlTypes::registerAll();
    context->setContextProperty(QStringLiteral("monitor"), monitor);
    context->setContextProperty(QStringLiteral("appSettings"), settings);
    context->setContextProperty(QStringLiteral("loc"), loc);
    context->setContextProperty(QStringLiteral("app"), app);
}

} // namespace DesktopContext

#include "ui/common/DesktopContext.h"

#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "ui/common/DesktopActions.h"
#include "ui/common/QmlFormat.h"
#include "ui/common/QmlTexts.h"
#include "ui/common/QmlTypes.h"

#include <QQmlContext>

namespace DesktopContext {

void install(QQmlContext *context, SystemMonitor *monitor, AppSettings *settings, Localizer *loc,
             DesktopActions *app)
{
    QmlTypes::registerAll();
    context->setContextProperty(QStringLiteral("monitor"), monitor);
    context->setContextProperty(QStringLiteral("appSettings"), settings);
    context->setContextProperty(QStringLiteral("loc"), loc);
    context->setContextProperty(QStringLiteral("texts"), new QmlTexts(*loc, context));
    context->setContextProperty(QStringLiteral("fmt"), new QmlFormat(context));
    context->setContextProperty(QStringLiteral("app"), app);
}

} // namespace DesktopContext

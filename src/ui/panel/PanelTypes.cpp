#include "ui/panel/PanelTypes.h"

#include "personality/PokeTracker.h"
#include "ui/panel/BannerModel.h"
#include "ui/panel/BarsView.h"
#include "ui/panel/HandCursor.h"
#include "ui/panel/Icon.h"
#include "ui/panel/MemoryCleanup.h"
#include "ui/panel/Sparkline.h"

#include <QQmlEngine>

namespace PanelTypes {

void registerAll()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    const char *uri = "Sulkbox";
    qmlRegisterType<Sparkline>(uri, 1, 0, "Sparkline");
    qmlRegisterType<BarsView>(uri, 1, 0, "BarsView");
    qmlRegisterType<Icon>(uri, 1, 0, "Icon");
    qmlRegisterType<BannerModel>(uri, 1, 0, "BannerModel");
    qmlRegisterType<MemoryCleanup>(uri, 1, 0, "MemoryCleanup");
    qmlRegisterType<HandCursor>(uri, 1, 0, "HandCursor");
}

} // namespace PanelTypes

#include "ui/common/QmlHost.h"

#include "ui/common/DesktopContext.h"

#include <QQmlEngine>

#include <memory>

namespace QmlHost {

namespace {

struct Context {
    SystemMonitor *monitor = nullptr;
    AppSettings *settings = nullptr;
    Localizer *loc = nullptr;
    DesktopActions *actions = nullptr;
};

Context &context()
{
    static Context c;
    return c;
}

std::unique_ptr<QQmlEngine> &instance()
{
    static std::unique_ptr<QQmlEngine> e;
    return e;
}

} // namespace

void configure(SystemMonitor *monitor, AppSettings *settings, Localizer *loc, DesktopActions *actions)
{
    context() = {monitor, settings, loc, actions};
}

QQmlEngine &engine()
{
    auto &e = instance();
    if (!e) {
        e = std::make_unique<QQmlEngine>();
        const Context &c = context();
        DesktopContext::install(e->rootContext(), c.monitor, c.settings, c.loc, c.actions);
    }
    return *e;
}

bool exists()
{
    return instance() != nullptr;
}

void reset()
{
    instance().reset();
}

} // namespace QmlHost

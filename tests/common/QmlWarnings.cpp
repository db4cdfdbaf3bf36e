#include "common/QmlWarnings.h"

#include <QMutex>

namespace QmlWarnings {

namespace {

QMutex mutex;
QStringList caught;
QtMessageHandler previous = nullptr;

bool fromQml(const QMessageLogContext &context, const QString &message)
{
    const QLatin1StringView category(context.category ? context.category : "");
    if (category.startsWith(QLatin1StringView("qml")) || category.startsWith(QLatin1StringView("js")))
        return true;
    if (context.file && QLatin1StringView(context.file).endsWith(QLatin1StringView(".qml")))
        return true;
    return message.contains(QLatin1StringView(".qml:")) || message.contains(QLatin1StringView("Binding loop"))
        || message.contains(QLatin1StringView("QML "));
}

void handler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg && fromQml(context, message)) {
        QMutexLocker lock(&mutex);
        caught << message;
    }
    if (previous)
        previous(type, context, message);
}

} // namespace

void catchAll()
{
    static bool installed = false;
    if (installed)
        return;
    installed = true;
    previous = qInstallMessageHandler(handler);
}

QStringList take()
{
    QMutexLocker lock(&mutex);
    QStringList out;
    out.swap(caught);
    return out;
}

} // namespace QmlWarnings

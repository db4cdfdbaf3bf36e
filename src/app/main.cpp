// sulkbox: a desktop system monitor with a personality.

#include "app/Cli.h"
#include "app/DesktopLauncher.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    // No command: the desktop face takes this process over.
    if (!Cli::wantsCommandLine(arguments))
        return DesktopLauncher::exec(argc, argv);

    QCoreApplication::setApplicationName(QStringLiteral("sulkbox"));
    QCoreApplication::setOrganizationName(QStringLiteral("sulkbox"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SULKBOX_VERSION));

    // The command line needs no GUI: a plain core application on Qt's own
    // event dispatcher (no glib main loop) keeps each tick small.
    if (qEnvironmentVariableIsEmpty("QT_NO_GLIB"))
        qputenv("QT_NO_GLIB", "1");
    QCoreApplication app(argc, argv);
    return Cli::run(arguments);
}

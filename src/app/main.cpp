// sulkbox: a desktop system monitor with a personality.

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("sulkbox"));
    QCoreApplication::setOrganizationName(QStringLiteral("sulkbox"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SULKBOX_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A desktop system monitor with a personality."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(app);

    std::fputs(qPrintable(parser.helpText()), stdout);
    return 0;
}

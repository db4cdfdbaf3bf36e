// Screen helper for the end-to-end tests, on the X display in DISPLAY:
//   screentool shot FILE [X Y W H]   saves the screen (or a part) as PNG
//   screentool diff A B [X Y W H]    prints "x y w h" around the pixels that
//                                    differ between two shots (in the part),
//                                    or "none"
//   screentool colors FILE           prints how many distinct colours it holds
//   screentool crop IN OUT X Y W H [ZOOM]  cuts out a part, enlarged ZOOM times

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QScreen>
#include <QSet>

#include <cstdio>

namespace {

QRect partFrom(const QStringList &args, int first, QRect fallback)
{
    if (args.size() < first + 4)
        return fallback;
    return QRect(args[first].toInt(), args[first + 1].toInt(), args[first + 2].toInt(), args[first + 3].toInt())
        .intersected(fallback);
}

int usage()
{
    std::fprintf(stderr, "usage: screentool shot FILE [X Y W H] | diff A B [X Y W H] | colors FILE | crop IN OUT X Y W H [ZOOM]\n");
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    // Only a shot needs the display.
    const bool shot = argc > 1 && qstrcmp(argv[1], "shot") == 0;
    qputenv("QT_QPA_PLATFORM", shot ? "xcb" : "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 3)
        return usage();

    if (args[1] == u"shot") {
        QScreen *screen = QGuiApplication::primaryScreen();
        const QRect part = partFrom(args, 3, screen->geometry());
        const QPixmap shot = screen->grabWindow(0, part.x(), part.y(), part.width(), part.height());
        if (shot.isNull() || !shot.save(args[2], "PNG")) {
            std::fprintf(stderr, "screentool: cannot save %s\n", qPrintable(args[2]));
            return 1;
        }
        return 0;
    }
    if (args[1] == u"diff" && args.size() >= 4) {
        const QImage a = QImage(args[2]).convertToFormat(QImage::Format_RGB32);
        const QImage b = QImage(args[3]).convertToFormat(QImage::Format_RGB32);
        if (a.isNull() || a.size() != b.size()) {
            std::fprintf(stderr, "screentool: the shots cannot be compared\n");
            return 1;
        }
        const QRect part = partFrom(args, 4, a.rect());
        QRect box;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            const auto *la = reinterpret_cast<const QRgb *>(a.constScanLine(y));
            const auto *lb = reinterpret_cast<const QRgb *>(b.constScanLine(y));
            for (int x = part.left(); x <= part.right(); ++x)
                if (la[x] != lb[x])
                    box |= QRect(x, y, 1, 1);
        }
        if (box.isNull())
            std::printf("none\n");
        else
            std::printf("%d %d %d %d\n", box.x(), box.y(), box.width(), box.height());
        return 0;
    }
    if (args[1] == u"colors") {
        const QImage image = QImage(args[2]).convertToFormat(QImage::Format_RGB32);
        QSet<QRgb> colors;
        for (int y = 0; y < image.height(); ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
            for (int x = 0; x < image.width(); ++x)
                colors.insert(line[x]);
        }
        std::printf("%lld\n", static_cast<long long>(colors.size()));
        return 0;
    }
    if (args[1] == u"crop" && args.size() >= 8) {
        const QImage image(args[2]);
        const QRect part = partFrom(args, 4, image.rect());
        const int zoom = args.size() > 8 ? qMax(1, args[8].toInt()) : 1;
        const QImage cut = image.copy(part).scaled(part.size() * zoom, Qt::IgnoreAspectRatio, Qt::FastTransformation);
        return cut.save(args[3], "PNG") ? 0 : 1;
    }
    return usage();
}

#include "common/TestSupport.h"

#include "settings/Settings.h"
#include "l10n/Fmt.h"

#include <QLocale>
#include <QTest>

#include <charconv>
#include <clocale>
#include <cmath>
#include <random>

class FmtTest : public QObject {
    Q_OBJECT

    // Runs every boundary case and absurd value; called under the C locale
    // and under German.
    void checkBoundaries()
    {
        QCOMPARE(Fmt::bytes(0, 1), u"0.0 B"_qs);
        QCOMPARE(Fmt::bytes(999, 0), u"999 B"_qs);
        QCOMPARE(Fmt::bytes(1000, 1), u"1.0 KB"_qs);
        QCOMPARE(Fmt::bytes(1234567, 1), u"1.2 MB"_qs);
        QCOMPARE(Fmt::bytes(999999, 0), u"1000 KB"_qs);
        QCOMPARE(Fmt::bytes(1e6, 0), u"1 MB"_qs);
        QCOMPARE(Fmt::bytes(1e15, 1), u"1.0 PB"_qs);
        QCOMPARE(Fmt::bytes(1e18, 0), u"1000 PB"_qs);
        QCOMPARE(Fmt::percent(0, 0), u"0%"_qs);
        QCOMPARE(Fmt::percent(0.423, 0), u"42%"_qs);
        QCOMPARE(Fmt::percent(0.4237, 1), u"42.4%"_qs);
        QCOMPARE(Fmt::percent(1.5, 0), u"150%"_qs);
        QCOMPARE(Fmt::watts(0), u"0 mW"_qs);
        QCOMPARE(Fmt::watts(0.25), u"250 mW"_qs);
        QCOMPARE(Fmt::watts(0.9996), u"1000 mW"_qs);
        QCOMPARE(Fmt::watts(1.0), u"1.0 W"_qs);
        QCOMPARE(Fmt::watts(12.34), u"12.3 W"_qs);
        QCOMPARE(Fmt::minutes(-1), u"\u2014"_qs);
        QCOMPARE(Fmt::minutes(0), u"\u2014"_qs);
        QCOMPARE(Fmt::minutes(59), u"59m"_qs);
        QCOMPARE(Fmt::minutes(60), u"1h 0m"_qs);
        QCOMPARE(Fmt::minutes(65), u"1h 5m"_qs);
        QCOMPARE(Fmt::temp(0), u"0°"_qs);
        QCOMPARE(Fmt::temp(45.6), u"46°"_qs);
        Settings::set(Settings::Key::useFahrenheit, true);
        QCOMPARE(Fmt::temp(0), u"32°F"_qs);
        QCOMPARE(Fmt::temp(45.6), u"114°F"_qs);
        Settings::set(Settings::Key::useFahrenheit, false);
        QCOMPARE(Fmt::temp(-3.4), u"-3°"_qs);
        // Absurd values stay readable.
        QCOMPARE(Fmt::bytes(qQNaN(), 1), u"0.0 B"_qs);
        QCOMPARE(Fmt::bytes(qInf(), 0), u"0 B"_qs);
        QCOMPARE(Fmt::bytes(-5, 0), u"-5 B"_qs);
        QCOMPARE(Fmt::percent(qQNaN(), 0), u"0%"_qs);
        QCOMPARE(Fmt::bytes(1e300, 0).right(3), u" PB"_qs);
    }

private slots:
    void init() { TestSupport::clearSettings(); }

    void boundaries() { checkBoundaries(); }

    void everyFigureAsToCharsWritesIt()
    {
        // Fmt writes everyday figures without to_chars; the text must be the
        // one to_chars (and so printf) gives, ties and signs included: halves
        // round to even on the exact binary value (0.125 to 0.12, 2.5 to 2,
        // 1.005 to 1.00, as it lies just below in binary).
        auto reference = [](double v, int decimals) {
            char buf[400];
            const auto res = std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed, decimals);
            return QString::fromLatin1(buf, res.ptr - buf);
        };
        QList<double> values{0.0, -0.0, 0.5, 1.5, 2.5, -2.5, 0.125, 0.375, 0.0625, 1.005, 0.045, 99.995,
                             1e-7, -1e-7, 4.5e-201, -3e-300, 5e-324, 999.95, 1e15, 2251799813685247.5,
                             1125899906842623.5, 562949953421311.75, 4503599627370495.5, 1e300};
        std::mt19937_64 random(20260311);
        for (int i = 0; i < 200000; ++i) {
            // Any sign and magnitude from 1e-9 to 1e17, as often as not an
            // odd number of halves (or quarters, eighths) of a decimal unit.
            const double magnitude = std::pow(10.0, std::uniform_real_distribution<double>(-9, 17)(random));
            double v = random() % 2 ? -magnitude : magnitude;
            if (random() % 2) {
                const int decimals = int(random() % 7);
                const double unit = std::pow(10.0, -decimals);
                v = (std::floor(v / unit) + double(random() % 8) / 8) * unit;
            }
            values.append(v);
            values.append(std::nextafter(v, 0.0));
        }
        for (const double v : std::as_const(values)) {
            for (int decimals = 0; decimals <= 8; ++decimals) {
                const QString expected = reference(v, decimals);
                if (Fmt::fixed(v, decimals) != expected)
                    QFAIL(qPrintable(u"%1 with %2 decimals: %3, not %4"_qs.arg(v, 0, 'g', 17).arg(decimals)
                                         .arg(Fmt::fixed(v, decimals), expected)));
            }
        }
    }

    void anyDecimalCountAsPrintfTakesIt()
    {
        // Past the 17 significant digits a double round-trips with, the
        // exact binary value shows, as printf shows it.
        QCOMPARE(Fmt::fixed(0.1, 30), u"0.100000000000000005551115123126"_qs);
        QCOMPARE(Fmt::percent(0.4237, 25), u"42.3700000000000045474735089%"_qs);
        QCOMPARE(Fmt::bytes(512, 18), u"512.000000000000000000 B"_qs);
        // The smallest double needs 1074 decimals to its last digit; beyond
        // that only zeros follow.
        const QString tiny = Fmt::fixed(5e-324, 1074);
        QCOMPARE(tiny.size(), 1076);
        QVERIFY(tiny.startsWith(u"0.000"_qs));
        QVERIFY(tiny.endsWith(u"3447265625"_qs));
        QCOMPARE(Fmt::fixed(1.5, 2000), u"1.5"_qs + QString(1999, u'0'));
        QCOMPARE(Fmt::fixed(-1e308, 3).size(), 1 + 309 + 1 + 3);
        // A negative count is no count.
        QCOMPARE(Fmt::fixed(2.75, -4), u"3"_qs);
    }

    void germanLocaleKeepsTheDecimalPoint()
    {
        const QByteArray previous = std::setlocale(LC_ALL, nullptr);
        const bool german = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
        QVERIFY2(german, "the de_DE.UTF-8 locale is not installed (scripts/deps.sh generates it)");
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        checkBoundaries();
        QLocale::setDefault(before);
        std::setlocale(LC_ALL, previous.constData());
    }
};

SULK_TEST(FmtTest)

#include "FmtTest.moc"

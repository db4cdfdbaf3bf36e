// The bar's lines against lines built the straightforward way (QJsonDocument
// and fresh texts every time), while the label's inputs change under them:
// the mode setting, the language, reactions, figures.

#include "common/FakeSamplers.h"
#include "common/TestSupport.h"

#include "app/BarLine.h"
#include "l10n/Fmt.h"
#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "settings/Settings.h"
#include "ui/MenuBarLabel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <cmath>
#include <limits>

namespace {

using Format = BarLine::Format;

QString rate(double v)
{
    return Fmt::bytes(v, 1) + u"/s"_qs;
}

QByteArray reference(const SystemMonitor &monitor, Format format, bool first)
{
    const Localizer &loc = Localizer::shared();
    const QString label = MenuBarLabel::text(monitor, loc, Settings::flag(Settings::Key::moodEnabled));
    const Mood &shown = monitor.reactionOrMood();
    switch (format) {
    case Format::plain:
        return (label + u'\n').toUtf8();
    case Format::waybar: {
        const QString figures = QStringList{u"CPU "_qs + Fmt::percent(monitor.cpu().total, 0),
                                            loc.t(LocKey::memory) + u' ' + Fmt::percent(monitor.memory().pressure, 0),
                                            u"↓ "_qs + rate(monitor.network().downRate),
                                            u"↑ "_qs + rate(monitor.network().upRate)}
                                    .join(u" · "_qs);
        const QJsonObject o{{u"text"_qs, label},
                            {u"tooltip"_qs, MenuBarLabel::phrase(shown, loc) + u'\n' + MenuBarLabel::reason(shown, loc)
                                                + u'\n' + figures},
                            {u"class"_qs, moodKindName(shown.kind())},
                            {u"alt"_qs, moodKindName(shown.kind())},
                            {u"percentage"_qs, qRound(monitor.cpu().total * 100)}};
        return QJsonDocument(o).toJson(QJsonDocument::Compact) + '\n';
    }
    case Format::i3bar: {
        const QJsonObject block{{u"name"_qs, u"sulkbox"_qs},
                                {u"full_text"_qs, label},
                                {u"short_text"_qs, shown.emoji()},
                                {u"color"_qs, shown.tint().name()}};
        return (first ? QByteArray() : QByteArray(",")) + QJsonDocument(QJsonArray{block}).toJson(QJsonDocument::Compact)
            + '\n';
    }
    }
    return {};
}

QByteArray qtJsonString(const QString &s)
{
    const QByteArray array = QJsonDocument(QJsonArray{s}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

} // namespace

class BarLineTest : public QObject {
    Q_OBJECT
private slots:
    void init() { TestSupport::resetSettings(); }
    void cleanup() { TestSupport::resetSettings(); }

    void jsonStringsAsQtWritesThem()
    {
        QString ascii;
        for (char16_t c = 0; c < 0x80; ++c)
            ascii += QChar(c);
        const QList<QString> samples = {
            ascii,
            u"é ß € \u2028 \uFEFF \uFFFF"_qs,
            u"😮‍💨 phew… 🥳 \U0001F9E7"_qs,
            u"ไทย 한국어 日本語 繁體"_qs,
            // Halves of a pair on their own, at either end and reversed.
            QString(QChar(0xD83D)) + u"x"_qs,
            u"x"_qs + QChar(0xDE00),
            QString(QChar(0xDE00)) + QChar(0xD83D),
            QString(QChar(0xD83D)),
            QString(),
        };
        for (const QString &s : samples) {
            QByteArray ours;
            BarLine::appendJsonString(ours, s);
            QCOMPARE(ours, qtJsonString(s));
        }
    }

    void percentKeyDecidesTheText()
    {
        // Neighbouring values have the same key exactly when they print the
        // same: a key that split one text would only cost time, but one that
        // joined two would leave a stale figure on the bar.
        // Every step of 0.0001 from -3 % to 103 %, negative zero, and each
        // half per cent with its two neighbours.
        QList<double> values{-0.0, 0.9949999};
        for (int i = -300; i <= 10300; ++i)
            values.append(i / 10000.0);
        for (int k = 0; k <= 100; ++k) {
            const double half = (k + 0.5) / 100;
            values.append(std::nextafter(half, 0.0));
            values.append(half);
            values.append(std::nextafter(half, 1.0));
        }
        std::sort(values.begin(), values.end());
        for (qsizetype i = 1; i < values.size(); ++i) {
            const double a = values[i - 1];
            const double b = values[i];
            const bool sameKey = BarLine::percentKey(a) == BarLine::percentKey(b);
            const bool sameText = Fmt::percent(a, 0) == Fmt::percent(b, 0);
            QVERIFY2(sameKey == sameText, qPrintable(u"%1 and %2"_qs.arg(a, 0, 'g', 17).arg(b, 0, 'g', 17)));
        }
        // Every NaN and infinity prints as 0 %; equal keys are enough there.
        const double nan = std::numeric_limits<double>::quiet_NaN();
        QCOMPARE(BarLine::percentKey(nan), BarLine::percentKey(nan));
        QCOMPARE(Fmt::percent(nan, 0), Fmt::percent(std::numeric_limits<double>::infinity(), 0));
    }

    void followsEveryInputOfTheLabel_data()
    {
        QTest::addColumn<Format>("format");
        QTest::newRow("plain") << Format::plain;
        QTest::newRow("waybar") << Format::waybar;
        QTest::newRow("i3bar") << Format::i3bar;
    }

    void followsEveryInputOfTheLabel()
    {
        QFETCH(Format, format);
        auto samplers = std::make_shared<FakeSamplers>();
        samplers->cpu.total = 0.074;
        samplers->memory.total = 16e9;
        samplers->memory.pressure = 0.426;
        ManualScheduler scheduler;
        SystemMonitor monitor(samplers, scheduler);
        BarLine bar(format);

        bool first = true;
        int step = 0;
        auto check = [&](const char *what) {
            ++step;
            const QByteArray expected = reference(monitor, format, first);
            const QByteArray actual = bar.next(monitor);
            first = false;
            if (actual != expected)
                QFAIL(qPrintable(u"step %1 (%2):\n  got  %3  want %4"_qs.arg(step).arg(QLatin1StringView(what))
                                     .arg(QString::fromUtf8(actual), QString::fromUtf8(expected))));
        };
        auto tick = [&] {
            scheduler.advance(1000);
            monitor.tick();
        };

        check("start-up");
        check("nothing changed");
        for (int i = 0; i < 10; ++i)
            tick();
        check("the greeting is over");
        Settings::set(Settings::Key::moodEnabled, false);
        check("numbers");
        samplers->cpu.total = 0.0749;
        tick();
        check("the same digits");
        samplers->cpu.total = 0.076;
        samplers->network.downRate = 1234.5;
        tick();
        check("new digits");
        samplers->memory.pressure = 0.5;
        samplers->network.upRate = 2e6;
        tick();
        check("memory and upload");
        Localizer::shared().setLanguage(AppLanguage::ja);
        check("Japanese numbers");
        Settings::set(Settings::Key::moodEnabled, true);
        check("Japanese mood");
        monitor.setReaction(Moods::phew());
        check("a reaction");
        Localizer::shared().setLanguage(AppLanguage::th);
        check("Thai reaction");
        monitor.setReaction(std::nullopt);
        check("the reaction is over");
        samplers->cpu.total = 0.9;
        for (int i = 0; i < 6; ++i)
            tick();
        check("working hard");
        samplers->network.downRate = 60e6;
        samplers->cpu.total = 0.1;
        for (int i = 0; i < 6; ++i)
            tick();
        check("downloading");
        Localizer::shared().setLanguage(AppLanguage::system);
        check("automatic language");
        check("nothing changed again");
    }
};

SULK_TEST(BarLineTest)
#include "BarLineTest.moc"

// What every QML view gets from its context: texts that follow the language,
// number formats that follow the unit setting, and the load colour.

#include "common/FakeSamplers.h"
#include "common/QmlWarnings.h"
#include "common/TestSupport.h"

#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "ui/common/DesktopActions.h"
#include "ui/common/DesktopContext.h"
#include "ui/common/QmlFormat.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include <cmath>
#include <memory>

class QmlContextTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QmlWarnings::catchAll(); }
    void init() { TestSupport::resetSettings(); }
    void cleanup()
    {
        TestSupport::resetSettings();
        QML_CLEAN();
    }

    void bindingsFollowLanguageAndUnit()
    {
        ManualScheduler scheduler;
        auto samplers = std::make_shared<FakeSamplers>();
        samplers->sensors.cpuTemp = 50;
        SystemMonitor monitor(samplers, scheduler);
        DesktopActions actions;
        QQmlEngine engine;
        DesktopContext::install(engine.rootContext(), &monitor, &AppSettings::shared(), &Localizer::shared(),
                                &actions);
        QQmlComponent component(&engine);
        component.setData(R"(
            import QtQuick
            QtObject {
                property string title: texts.memory
                property string installed: fmt.fill(texts.installedFmt, [fmt.bytes(16e9, 0)])
                property string temp: fmt.temp(monitor.sensors.cpuTemp, appSettings.useFahrenheit)
            }
        )", QUrl(QStringLiteral("qrc:/test/Probe.qml")));
        const std::unique_ptr<QObject> probe(component.create());
        QVERIFY2(probe, qPrintable(component.errorString()));
        QCOMPARE(probe->property("title").toString(), QStringLiteral("Memory"));
        QCOMPARE(probe->property("installed").toString(), QStringLiteral("16 GB installed"));
        QCOMPARE(probe->property("temp").toString(), QStringLiteral("50°"));

        Localizer::shared().setLanguage(AppLanguage::ja);
        QCOMPARE(probe->property("title").toString(), QStringLiteral("メモリ"));
        QCOMPARE(probe->property("installed").toString(), QStringLiteral("16 GB 搭載"));

        AppSettings::shared().setUseFahrenheit(true);
        QCOMPARE(probe->property("temp").toString(), QStringLiteral("122°F"));
    }

    void loadColorBoundaries()
    {
        auto hsv = [](double f) {
            const QColor c = loadColor(f);
            return std::array<double, 3>{c.hsvHueF(), c.hsvSaturationF(), c.valueF()};
        };
        QCOMPARE(hsv(-1), hsv(0));
        QCOMPARE(hsv(std::nan("")), hsv(0));
        QCOMPARE(hsv(3), hsv(1));
        QVERIFY(std::abs(hsv(0)[0] - 0.33) < 0.005);
        QVERIFY(std::abs(hsv(1)[0]) < 0.005);
        // The step at exactly one half: saturation and brightness jump.
        QVERIFY(std::abs(hsv(0.49)[1] - 0.75) < 0.005 && std::abs(hsv(0.49)[2] - 0.85) < 0.005);
        QVERIFY(std::abs(hsv(0.5)[1] - 0.85) < 0.005 && std::abs(hsv(0.5)[2] - 0.9) < 0.005);
        QVERIFY(std::abs(hsv(0.5)[0] - 0.15) < 0.005);
    }
};

SULK_TEST(QmlContextTest)
#include "QmlContextTest.moc"

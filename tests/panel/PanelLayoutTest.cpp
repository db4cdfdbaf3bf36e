// The panel's frame: which modules show and in what order, the dividers,
// the footer's actions, Escape, the language and the desktop's palette.

#include "PanelHarness.h"

class PanelLayoutTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QmlWarnings::catchAll();
        PanelHarness::setUpRendering();
    }
    void init()
    {
        TestSupport::clearSettings();
        Localizer::shared().reload();
    }
    void cleanup()
    {
        TestSupport::clearSettings();
        Localizer::shared().reload();
        QML_CLEAN();
    }

    void loads()
    {
        PanelHarness::Panel p;
        p.ordinaryReadings();
        p.load();
        QVERIFY(p.root);
        QCOMPARE(p.root->width(), 300.0);
        QVERIFY(p.root->implicitHeight() > 500);
        p.window->grabWindow().save(QStringLiteral("/tmp/panel-smoke.png"));
        for (const char *n : {"nameLine", "phrase", "reason", "face"}) {
            QQuickItem *i = p.find(QString::fromLatin1(n));
            qDebug() << n << i->mapToScene(QPointF(0, 0)) << i->width() << i->height() << i->implicitHeight();
        }
    }
};

SULK_TEST(PanelLayoutTest)
#include "PanelLayoutTest.moc"

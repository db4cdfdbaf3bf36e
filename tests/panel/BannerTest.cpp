// The mood banner in the real panel: the name line, pokes from any point of
// it, the annoyed machine, roasts over quips, Savage Mode's face, and long
// lines that wrap to three.

#include "PanelHarness.h"

#include "personality/PokeTracker.h"
#include "personality/Quips.h"
#include "personality/Roasts.h"
#include "ui/panel/BannerModel.h"

using PanelHarness::Panel;
using PanelHarness::shown;

namespace {

BannerModel *bannerModel(const Panel &p)
{
    return p.find<QObject>(u"banner"_qs)->property("model").value<BannerModel *>();
}

} // namespace

class BannerTest : public PanelHarness::TestCase {
    Q_OBJECT

private slots:
    void nameLineAndLanguage()
    {
        Panel p;
        p.load();
        QCOMPARE(p.text(p.find(u"nameLine"_qs)), u"YOUR COMPUTER"_qs);
        AppSettings::shared().setPetName(u"Pixel"_qs);
        QCOMPARE(p.text(p.find(u"nameLine"_qs)), u"PIXEL"_qs);
        AppSettings::shared().setPetName(QString());
        Localizer::shared().setLanguage(AppLanguage::ja);
        QCOMPARE(p.text(p.find(u"nameLine"_qs)), Localizer::shared().t(LocKey::yourMac).toUpper());
    }

    // A click on the face and one far right of the text each poke once.
    void onePokePerClickAnywhere()
    {
        Panel p;
        p.load();
        BannerModel *model = bannerModel(p);
        QQuickItem *banner = p.find(u"banner"_qs);
        QCOMPARE(model->pokes()->quipID(), 0);

        p.click(p.find(u"face"_qs));
        QCOMPARE(model->pokes()->quipID(), 1);
        QVERIFY(model->hasQuip());
        QTRY_VERIFY(shown(p.find(u"quip"_qs)));
        QCOMPARE(p.text(p.find(u"quip"_qs)), BannerModel::quoted(model->pokes()->quipText()));
        const QStringList pool = Quips::lines(Quips::pools(), p.monitor->mood().kind(), AppLanguage::en);
        QVERIFY(pool.contains(model->pokes()->quipText()));

        p.click(banner, QPointF(banner->width() - 2, banner->height() - 2));
        QCOMPARE(model->pokes()->quipID(), 2);

        // The face bounced: it grows and tilts, then springs back.
        QQuickItem *face = p.find(u"face"_qs);
        p.click(face);
        QTRY_VERIFY(face->scale() > 1.1);
        QVERIFY(face->rotation() < 0);
        QTRY_COMPARE(face->scale(), 1.0);

        // The quip goes 4 s after the latest poke, and the reason returns.
        p.advance(PokeTracker::quipMs);
        QVERIFY(!model->hasQuip());
        QTRY_VERIFY(shown(p.find(u"reason"_qs)));
    }

    void fifthPokeAnnoys()
    {
        Panel p;
        p.load();
        BannerModel *model = bannerModel(p);
        QQuickItem *face = p.find(u"face"_qs);
        for (int i = 0; i < 4; ++i) {
            p.click(face);
            p.advance(1000);
        }
        QVERIFY(!p.monitor->hasReaction());
        p.click(face);
        QVERIFY(p.monitor->hasReaction());
        QCOMPARE(p.text(face), Moods::stopPoking().emoji());
        QCOMPARE(p.find(u"phrase"_qs)->property("text").toString(), u"hey, stop poking!"_qs);
        const QStringList annoyed = Quips::lines(Quips::pools(), MoodKind::annoyed, AppLanguage::en);
        QVERIFY(annoyed.contains(model->pokes()->quipText()));

        // A poke while annoyed draws from the annoyed pool too.
        p.click(face);
        QVERIFY(annoyed.contains(model->pokes()->quipText()));
        p.advance(PokeTracker::annoyedMs);
        QVERIFY(!p.monitor->hasReaction());
        QCOMPARE(p.text(face), p.monitor->mood().emoji());
    }

    void roastReplacesQuipAndEndsAndTheSavageFaceFollows()
    {
        Panel p;
        p.load();
        BannerModel *model = bannerModel(p);
        p.click(p.find(u"face"_qs));
        QVERIFY(model->hasQuip());

        p.click(p.find(u"cpuHeader"_qs), {5, 5});
        QVERIFY(!model->hasQuip());
        QQuickItem *roast = p.find(u"roastLine"_qs);
        RoastEvent event = *p.monitor->roastEvent();
        auto lineFor = [&](bool savage) {
            return BannerModel::quoted(Roasts::line(event.topic, event.notable, savage, AppLanguage::en, event.arg,
                                                    event.seed));
        };
        QCOMPARE(p.text(roast), u"\u201C"_qs + Roasts::line(event.topic, event.notable, false, AppLanguage::en,
                                                             event.arg, event.seed) + u"\u201D"_qs);
        QTRY_VERIFY(shown(roast) && !shown(p.find(u"phrase"_qs)));

        // After 5 s the phrase and the reason are back, not the quip.
        p.advance(SystemMonitor::roastLifetimeMs);
        QVERIFY(!p.monitor->hasRoastEvent());
        QTRY_VERIFY(shown(p.find(u"phrase"_qs)) && shown(p.find(u"reason"_qs)) && !shown(roast));
        QVERIFY(!model->hasQuip());

        // The savage face shows only over a roast, following the setting.
        QQuickItem *face = p.find(u"face"_qs);
        const QString moodFace = p.monitor->mood().emoji();
        p.monitor->roast(RoastTopic::disk);
        p.settle();
        event = *p.monitor->roastEvent();
        QCOMPARE(p.text(face), moodFace);
        QCOMPARE(p.text(roast), lineFor(false));

        AppSettings::shared().setSavageMode(true);
        QCOMPARE(p.text(face), BannerModel::savageFace());
        QCOMPARE(p.text(roast), lineFor(true));
        AppSettings::shared().setSavageMode(false);
        QCOMPARE(p.text(face), moodFace);

        // Savage Mode alone, with no roast on show, keeps the mood's face.
        AppSettings::shared().setSavageMode(true);
        p.advance(SystemMonitor::roastLifetimeMs);
        QCOMPARE(p.text(face), moodFace);
    }

    // A roast naming a process with an endless name stops at three lines
    // and makes the banner taller only while it shows.
    void longRoastWrapsToThreeLines()
    {
        Panel p;
        p.samplers->processes = {ProcInfo(7, QString(u"very-long-process-name-"_qs).repeated(12), 95, 1)};
        p.load();
        p.monitor->sampleSlow();
        QTRY_COMPARE(p.monitor->processes().size(), 1);
        const qreal before = p.root->implicitHeight();
        p.monitor->roast(RoastTopic::processes);
        QVERIFY(p.monitor->roastEvent()->notable);
        QQuickItem *roast = p.find(u"roastLine"_qs);
        QTRY_VERIFY(shown(roast) && roast->property("lineCount").toInt() == 3);
        QVERIFY(roast->property("truncated").toBool());
        QTRY_VERIFY(p.root->implicitHeight() > before + 20);
        // The text stays inside the banner.
        QQuickItem *banner = p.find(u"banner"_qs);
        QTRY_VERIFY(roast->mapToItem(banner, QPointF(0, roast->height())).y() <= banner->height() + 0.5);
        p.advance(SystemMonitor::roastLifetimeMs);
        QTRY_COMPARE(p.root->implicitHeight(), before);
    }
};

SULK_TEST(BannerTest)
#include "BannerTest.moc"

// Poke bookkeeping on a hand-driven clock: the 8-second window, the annoyed
// reaction and its clearing, and the quip's 4-second life.

#include "common/TestSupport.h"

#include "model/SystemMonitor.h"
#include "personality/MoodPrint.h"
#include "personality/PokeTracker.h"
#include "personality/Quips.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

struct Rig {
    ManualScheduler scheduler;
    SystemMonitor monitor{std::make_shared<EmptySamplers>(), scheduler};
    std::unique_ptr<PokeTracker> tracker =
        std::make_unique<PokeTracker>(monitor, scheduler, [] { return AppLanguage::en; });

    // Pokes `count` times, `gapMs` apart, showing the current reaction or
    // mood each time; returns the poke numbers (1-based) that set the
    // annoyed reaction.
    QList<int> pokeEvery(qint64 gapMs, int count)
    {
        QList<int> annoyedAt;
        for (int i = 1; i <= count; ++i) {
            if (i > 1)
                scheduler.advance(gapMs);
            tracker->poke(monitor.reactionOrMood());
            // The window empties exactly when a poke annoys.
            if (tracker->pokeTimes().isEmpty() && monitor.reaction() == std::optional<Mood>(Moods::stopPoking()))
                annoyedAt.append(i);
        }
        return annoyedAt;
    }
};

QStringList pool(MoodKind kind)
{
    return Quips::pools().value(kind).value(AppLanguage::en);
}

} // namespace

class PokeTrackerTest : public QObject {
    Q_OBJECT

private slots:
    void fourQuickPokesOnlyQuip()
    {
        Rig rig;
        QSignalSpy bounces(rig.tracker.get(), &PokeTracker::bounced);
        const Mood shown = Moods::workingHard(0.9);
        for (int i = 0; i < 4; ++i) {
            rig.tracker->poke(shown);
            QVERIFY(rig.tracker->quip());
            QVERIFY(pool(MoodKind::busy).contains(*rig.tracker->quip()));
            rig.scheduler.advance(1000);
        }
        QVERIFY(!rig.monitor.reaction());
        QCOMPARE(bounces.count(), 4);
        QCOMPARE(rig.tracker->quipID(), 4);
    }

    void fifthPokeWithinEightSecondsAnnoys()
    {
        Rig rig;
        QCOMPARE(rig.pokeEvery(1999, 5), QList<int>{5}); // the fifth 7.996 s after the first
        QVERIFY(pool(MoodKind::annoyed).contains(*rig.tracker->quip()));
        QCOMPARE(Rig().pokeEvery(1900, 20), QList<int>({5, 10, 15, 20}));
        Rig slower;
        QCOMPARE(slower.pokeEvery(2000, 30), QList<int>());
        QVERIFY(!slower.monitor.reaction());
    }

    void annoyedReactionEndsAfterFiveSeconds()
    {
        Rig rig;
        QSignalSpy changes(&rig.monitor, &SystemMonitor::reactionChanged);
        rig.pokeEvery(100, 5);
        QCOMPARE(changes.count(), 1);
        rig.scheduler.advance(4999);
        QVERIFY(rig.monitor.reaction());
        rig.scheduler.advance(1);
        QVERIFY(!rig.monitor.reaction());
        QCOMPARE(changes.count(), 2);

        // A newer reaction survives the older one's timer.
        Rig newer;
        newer.pokeEvery(100, 5);
        newer.scheduler.advance(2000);
        newer.monitor.setReaction(Moods::glovesOff());
        newer.scheduler.advance(10000);
        QCOMPARE(newer.monitor.reaction(), std::optional<Mood>(Moods::glovesOff()));

        // The reaction ends even when the banner that caused it is gone.
        Rig gone;
        gone.pokeEvery(100, 5);
        gone.tracker.reset();
        gone.scheduler.advance(5000);
        QVERIFY(!gone.monitor.reaction());
    }

    void quipHidesFourSecondsAfterTheLatestPoke()
    {
        Rig rig;
        QSignalSpy quips(rig.tracker.get(), &PokeTracker::quipChanged);
        rig.tracker->poke(Moods::allChill());
        rig.scheduler.advance(3000);
        rig.tracker->poke(Moods::allChill());
        rig.scheduler.advance(1000); // the first quip's timer finds a newer quip
        QVERIFY(rig.tracker->quip());
        rig.scheduler.advance(2999);
        QVERIFY(rig.tracker->quip());
        rig.scheduler.advance(1);
        QVERIFY(!rig.tracker->quip());
        QVERIFY(quips.count() >= 2);
    }

    void quipFollowsTheShownMood()
    {
        Rig rig;
        rig.tracker->poke(Moods::glovesOff()); // a reaction of kind calm
        QVERIFY(pool(MoodKind::calm).contains(*rig.tracker->quip()));
        rig.tracker->poke(Moods::stopPoking());
        QVERIFY(pool(MoodKind::annoyed).contains(*rig.tracker->quip()));
        rig.tracker->clearQuip();
        QVERIFY(!rig.tracker->quip());
    }
};

SULK_TEST(PokeTrackerTest)
#include "PokeTrackerTest.moc"

#include "app/Feedback.h"
#include "platform/fakes/RecordedHaptics.h"
#include "platform/fakes/RecordedLoginItem.h"
#include "platform/fakes/RecordedNotifications.h"
#include "platform/fakes/RecordedSound.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QTemporaryDir>
#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;

namespace
{

struct FeedbackRig {
    QTemporaryDir folder;
    VirtualRunLoop loop;
    PreferencesFile preferences{loop, folder.filePath(u"settings.json"_s)};
    RecordedLoginItem loginItem;
    Settings settings{preferences, loginItem};
    RecordedSound sounds;
    RecordedHaptics haptics;
    RecordedNotifications notifications;
    Feedback feedback{settings, sounds, haptics, notifications};
};

using Sounds = QList<Sound>;
using Taps = QList<HapticPattern>;
using Action = void (Feedback::*)();

}

class FeedbackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void each_action_has_its_sound_and_tap_data();
    void each_action_has_its_sound_and_tap();
    void each_preference_silences_its_own();
    void no_trackpad_is_asked_for_what_it_cannot();
    void notifications_need_no_preference();
};

void FeedbackTest::each_action_has_its_sound_and_tap_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<Sounds>("sounds");
    QTest::addColumn<Taps>("taps");

    QTest::newRow("pop") << &Feedback::pop << Sounds{Sound::Pop} << Taps{HapticPattern::Alignment};
    QTest::newRow("success") << &Feedback::success << Sounds{Sound::Glass}
                             << Taps{HapticPattern::LevelChange};
    QTest::newRow("tick") << &Feedback::tick << Sounds{Sound::Tink} << Taps{};
    QTest::newRow("remove") << &Feedback::remove << Sounds{Sound::Bottle} << Taps{};
    QTest::newRow("tap") << &Feedback::tap << Sounds{} << Taps{HapticPattern::Alignment};
}

void FeedbackTest::each_action_has_its_sound_and_tap()
{
    QFETCH(Action, action);
    QFETCH(Sounds, sounds);
    QFETCH(Taps, taps);
    FeedbackRig rig;

    (rig.feedback.*action)();

    QVERIFY(rig.sounds.played == sounds);
    QVERIFY(rig.haptics.performed == taps);
}

void FeedbackTest::each_preference_silences_its_own()
{
    FeedbackRig rig;

    rig.settings.setPlaySounds(false);
    rig.feedback.pop();
    QVERIFY(rig.sounds.played.isEmpty());
    QCOMPARE(rig.haptics.performed.size(), 1);
    rig.settings.setPlaySounds(true);
    rig.settings.setHapticFeedback(false);
    rig.feedback.success();

    QVERIFY(rig.sounds.played == Sounds{Sound::Glass});
    QCOMPARE(rig.haptics.performed.size(), 1);
}

void FeedbackTest::no_trackpad_is_asked_for_what_it_cannot()
{
    FeedbackRig rig;
    rig.haptics.available = false;

    rig.feedback.pop();

    QVERIFY(rig.haptics.performed.isEmpty());
}

void FeedbackTest::notifications_need_no_preference()
{
    FeedbackRig rig;
    rig.settings.setPlaySounds(false);

    rig.feedback.requestNotificationAuth();
    rig.feedback.notify(u"Focus"_s, u"Done"_s, NotificationSound::Default);

    QCOMPARE(rig.notifications.permissionRequests, 1);
    QCOMPARE(rig.notifications.posted.size(), 1);
    QVERIFY(rig.notifications.posted.first() ==
            (RecordedNotifications::Posted{u"Focus"_s, u"Done"_s, NotificationSound::Default}));
}

}

QTEST_GUILESS_MAIN(velm::FeedbackTest)
#include "FeedbackTest.moc"

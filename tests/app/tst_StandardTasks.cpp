#include "app/StandardTasks.h"

#include "launch/ProcessManager.h"
#include "persistence/FileInfo.h"
#include "persistence/Keys.h"
#include "persistence/UserSettings.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

/// Records each call as "key=value ..." and refuses the first ones, as a locked store does.
class LockedSettings : public UserSettings
{
public:
    QVariant getUserData(const QString&, const QVariant& defaultValue) override
    {
        return defaultValue;
    }
    Saved saveUserData(const QList<Value>& values, quint64, OnLock) override
    {
        QStringList call;
        for (const Value& each : values)
            call << each.key + u'=' + each.value.toString();
        calls << call.join(u' ');
        return refusals-- > 0 ? Saved::Locked : Saved::Done;
    }
    bool clearUserData() override { return true; }
    quint64 currentSignIn() const override { return 1; }

    QStringList calls;
    int refusals = 0;
};

} // namespace

class tst_StandardTasks : public QObject
{
    Q_OBJECT

private slots:
    void valuesOfOneChangeAreSavedTogether();
};

void tst_StandardTasks::valuesOfOneChangeAreSavedTogether()
{
    using Outcome = TaskQueue::Outcome;
    const QTemporaryDir folder;
    FileInfo fileInfo(folder.filePath(u"config.ini"_s));
    LockedSettings settings;
    settings.refusals = 1;
    ProcessManager programs{QString()};
    const TaskQueue::Actions actions = standardTasks(fileInfo, settings, programs);
    const auto save =
        std::ranges::find(actions, QString(keys::task::SaveUserData), &TaskQueue::Action::name);
    QVERIFY(save != actions.end());
    const QVariantList last{u"token"_s, u"t"_s, 1, false};

    QCOMPARE(save->perform({u"email"_s, u"a"_s, 1, true}, false), Outcome::Done);
    QCOMPARE(settings.calls, QStringList());
    QCOMPARE(save->perform(last, false), Outcome::TryAgain);
    QCOMPARE(save->perform(last, false), Outcome::Done);
    QCOMPARE(save->perform({u"picture"_s, u"p"_s}, false), Outcome::Done);
    QCOMPARE(settings.calls,
             (QStringList{u"email=a token=t"_s, u"email=a token=t"_s, u"picture=p"_s}));
}

QTEST_GUILESS_MAIN(tst_StandardTasks)
#include "tst_StandardTasks.moc"

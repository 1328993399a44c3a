#pragma once

#include "bench/endurance/ComputerSleep.h"
#include "bench/endurance/RunningProgram.h"
#include "bench/endurance/SimulatedRoom.h"

#include <QMap>

#include <optional>

/// What a person does with the program and a display in a year, and the state that has to come out.
class WorkingYear
{
public:
    static constexpr int Days = 250;

    /// @p home is the home folder, @p room outlives this object.
    WorkingYear(QString home, SimulatedRoom& room);

    /// One day, which ends without a display and without a user.
    void work(int day);
    /// Signs in once more, quits the program, and compares what it has stored. Prints each
    /// comparison; true if all hold.
    [[nodiscard]] bool close();

    /// By how much the clocks are ahead, because the computer has slept.
    std::chrono::hours slept() const { return m_sleep.total(); }

private:
    using Signal = void (NetworkManager::*)(const QJsonObject&);
    using FailureSignal = void (NetworkManager::*)(const QString&);

    void prepare() const;
    void signIn();
    void editProfile(int day, const QString& picture);
    /// Sends a request. Every tenth one meets a service that fails, and is sent again.
    QJsonObject request(const std::function<void()>& send, Signal succeeded, FailureSignal failed);
    void adopt(const QJsonObject& user);

    void connectDisplay(const QString& mode = {});
    void disconnectDisplay();
    void meet(int number);
    void moveCamera();
    void changeSettings(int day);
    /// @p vanishes  the display goes in the middle
    void setUp(bool vanishes);
    void press(const QJsonObject& button);
    void sleepAndWake();
    void upgrade(int day);

    void wait(const char* forWhat, const std::function<bool()>& isDone) const;
    DeviceControl& device() const { return m_program->device(); }

    const QString m_home;
    SimulatedRoom& m_room;
    ComputerSleep m_sleep;
    std::optional<RunningProgram> m_program;
    int m_requests = 0;

    // The state that has to come out.
    QMap<QString, QString> m_user; // by key of the database
    QString m_version;
    bool m_usesRemoteDevice = true;
    int m_launches = 0;
};

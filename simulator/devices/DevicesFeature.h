#pragma once

#include "simulator/devices/DeviceTree.h"
#include "simulator/script/Feature.h"

namespace simulator
{

class EventLog;

/// The commands that plug the display's microphone, camera and speaker into this PC and unplug
/// them, for a program that reads its devices from a DeviceTree.
class DevicesFeature : public Feature
{
    Q_OBJECT

public:
    /// @p log must outlive the feature.
    DevicesFeature(EventLog& log, QObject* parent = nullptr);

    QString name() const override;
    void addCommands(CommandInterpreter& interpreter) override;
    QJsonObject status() const override;

    /// Keeps the tree in @p folder. Returns the reason of a failure, otherwise an empty text.
    [[nodiscard]] QString setRoot(const QString& folder);

private:
    QString plug(int choice);
    QString unplug(int choice);
    void reportState();

    EventLog& m_log;
    DeviceTree m_tree;
};

} // namespace simulator

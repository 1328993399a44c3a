#pragma once

#include "launch/ProgramControl.h"

/// The programs of this PC.
class SystemProgramControl final : public ProgramControl
{
public:
    bool killProcess(const QString& name, const std::stop_token& stop) override;
    void keepProcessAlive(const QString& name, const std::stop_token& stop) override;
    bool startProcess(const QString& name, const QStringList& arguments) override;
};

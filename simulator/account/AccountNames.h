#pragma once

#include "simulator/account/AccountFault.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

namespace simulator
{

/// The words that commands and events use for the service's jobs and faults: those of the
/// enumerations, as in "profile-read".
QString endpointName(AccountFault::Endpoint endpoint);
QString faultName(AccountFault::Kind kind);

/// By their order of declaration.
const QStringList& endpointNames();

/// The faults that need nothing but their name.
const QList<std::pair<QString, AccountFault::Kind>>& namedFaults();

} // namespace simulator

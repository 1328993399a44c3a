#pragma once

#include "simulator/account/AccountFault.h"
#include "simulator/account/AccountStore.h"

#include <optional>

struct AccountRequest;

/// The well-behaved service: maps HTTP requests onto an AccountStore.
namespace AccountRoutes
{

/// The endpoint that a request addresses; nothing for an unknown address.
[[nodiscard]] std::optional<AccountFault::Endpoint> endpointOf(const AccountRequest& request);

[[nodiscard]] AccountStore::Answer answer(AccountStore& store, const AccountRequest& request);

} // namespace AccountRoutes

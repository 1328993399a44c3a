#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

#include <optional>
#include <utility>

/// A received HTTP request.
struct AccountRequest {
    QByteArray method;
    QByteArray target; ///< path and query, undecoded
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;

    [[nodiscard]] QByteArray path() const;
    [[nodiscard]] QByteArray query() const;

    /// The first header of that name, compared without case. Empty if there is none.
    [[nodiscard]] QByteArray header(QByteArrayView name) const;
};

/// Decodes an e-mail address or a password, which requests carry as Base64url text.
[[nodiscard]] QString decodeAccountCredential(const QString& text);

/// Takes one complete request from the front of @p received. Nothing while it is incomplete. A
/// request without Content-Length has no body.
[[nodiscard]] std::optional<AccountRequest> takeAccountRequest(QByteArray& received);

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

#include <optional>
#include <utility>

/// One HTTP request as it came over the wire.
struct AccountRequest {
    QByteArray method;
    QByteArray target; ///< path and query, undecoded
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;

    [[nodiscard]] QByteArray path() const;
    [[nodiscard]] QByteArray query() const;

    /// First header of that name, in any case; empty when there is none.
    [[nodiscard]] QByteArray header(QByteArrayView name) const;
};

/// An e-mail address or password in clear; the service is sent them as Base64url text.
[[nodiscard]] QString decodeAccountCredential(const QString& text);

/// Takes one complete request off the front of what was received. Nothing while it is incomplete;
/// a request without Content-Length has no body.
[[nodiscard]] std::optional<AccountRequest> takeAccountRequest(QByteArray& received);

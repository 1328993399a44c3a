#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

/// What the account service's reply body says. The HTTP status plays no part: the service explains
/// a refusal in the body, whatever the status.
struct ReplyBody {
    enum class Kind {
        Success,       ///< `object` is the whole reply
        Refused,       ///< the service said no, in `message` if it gave a reason
        NotJson,       ///< `parseError` tells why
        NotJsonObject, ///< valid JSON of another shape
    };

    Kind kind = Kind::NotJson;
    QJsonObject object;
    /// The service's reason: absent when the reply has no such member, empty when it is not a
    /// string.
    std::optional<QString> message;
    QString parseError;
};

/// Decodes a non-empty reply body. Pure; takes any bytes.
[[nodiscard]] ReplyBody decodeReplyBody(const QByteArray& body);

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

/// A decoded reply body of the account service. The HTTP status is not considered: the service
/// gives the reason of a refusal in the body, whatever the status.
struct ReplyBody {
    enum class Kind {
        Success,       ///< `object` is the whole reply
        Refused,       ///< the service refused the request; `message` is the reason, if any
        NotJson,       ///< `parseError` is the reason
        NotJsonObject, ///< valid JSON of another shape
    };

    Kind kind = Kind::NotJson;
    QJsonObject object;
    /// The "message" member: absent if the reply has none, empty if it is not a string.
    std::optional<QString> message;
    QString parseError;
};

/// Decodes a reply body. Accepts any bytes, depends on nothing else.
///
/// The texts in it end up on pages, in the log and in the store. In the message and in the members
/// of the object, to any depth, control characters are replaced by blanks and texts are cut to a
/// sane length. A picture is left as it is.
[[nodiscard]] ReplyBody decodeReplyBody(const QByteArray& body);

#include "account/ReplyBody.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

ReplyBody decodeReplyBody(const QByteArray& body)
{
    ReplyBody reply;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError) {
        reply.parseError = error.errorString();
        return reply;
    }
    if (!document.isObject()) {
        reply.kind = ReplyBody::Kind::NotJsonObject;
        return reply;
    }

    reply.object = document.object();
    // A profile is returned bare, without a "success" member; its user id marks it.
    const auto success = reply.object.constFind("success"_L1);
    const bool succeeded =
        success != reply.object.constEnd() ? success->toBool() : reply.object.contains("userId"_L1);
    reply.kind = succeeded ? ReplyBody::Kind::Success : ReplyBody::Kind::Refused;
    if (const auto text = reply.object.constFind("message"_L1); text != reply.object.constEnd())
        reply.message = text->toString();
    return reply;
}

#include "account/ReplyBody.h"

#include "account/AccountText.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace
{

/// Changes only what needs it, since the object may hold a large picture.
void clean(QJsonObject& object)
{
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (member->isObject()) {
            QJsonObject inner = member->toObject();
            clean(inner);
            *member = inner;
        } else if (member->isString()) {
            const QString text = member->toString();
            const QString clean = AccountText::value(member.key(), text);
            if (clean != text)
                *member = clean;
        }
    }
}

} // namespace

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
        reply.message = AccountText::message(text->toString());
    clean(reply.object);
    return reply;
}

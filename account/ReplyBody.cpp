#include "account/ReplyBody.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace
{

// In characters.
constexpr qsizetype LongestMessage = 500;
constexpr qsizetype LongestToken = 8192;
constexpr qsizetype LongestText = 256;

QString cleaned(const QString& text, qsizetype longest)
{
    QString clean = text.left(longest);
    if (!clean.isEmpty() && clean.back().isHighSurrogate())
        clean.chop(1);
    for (QChar& character : clean) {
        if (character.category() == QChar::Other_Control)
            character = u' ';
    }
    return clean;
}

/// Changes only what needs it, since the object may hold a large picture.
void clean(QJsonObject& object)
{
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (member->isObject()) {
            QJsonObject inner = member->toObject();
            clean(inner);
            *member = inner;
        } else if (member->isString() && member.key() != "picture"_L1) {
            const QString text = member->toString();
            const QString clean =
                cleaned(text, member.key() == "token"_L1 ? LongestToken : LongestText);
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
        reply.message = cleaned(text->toString(), LongestMessage);
    clean(reply.object);
    return reply;
}

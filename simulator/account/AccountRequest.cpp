#include "simulator/account/AccountRequest.h"

#include <algorithm>

QByteArray AccountRequest::path() const
{
    return target.first(target.size() - (query().isNull() ? 0 : query().size() + 1));
}

QByteArray AccountRequest::query() const
{
    const auto mark = target.indexOf('?');
    return mark < 0 ? QByteArray() : target.sliced(mark + 1);
}

QByteArray AccountRequest::header(QByteArrayView name) const
{
    for (const auto& [key, value] : headers) {
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    }
    return {};
}

QString decodeAccountCredential(const QString& text)
{
    return QString::fromUtf8(
        QByteArray::fromBase64(text.toLatin1(), QByteArray::Base64UrlEncoding));
}

std::optional<AccountRequest> takeAccountRequest(QByteArray& received)
{
    const auto headEnd = received.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return std::nullopt;

    AccountRequest request;
    QList<QByteArray> lines = received.first(headEnd).split('\n');
    const QList<QByteArray> requestLine = lines.takeFirst().trimmed().split(' ');
    request.method = requestLine.value(0);
    request.target = requestLine.value(1);
    for (const QByteArray& line : lines) {
        const auto colon = line.indexOf(':');
        if (colon > 0)
            request.headers.append({line.first(colon).trimmed(), line.sliced(colon + 1).trimmed()});
    }

    const auto bodyStart = headEnd + 4;
    const auto bodySize = std::max(0LL, request.header("Content-Length").toLongLong());
    if (received.size() - bodyStart < bodySize)
        return std::nullopt;
    request.body = received.sliced(bodyStart, bodySize);
    received.remove(0, bodyStart + bodySize);
    return request;
}

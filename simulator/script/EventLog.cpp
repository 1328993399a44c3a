#include "simulator/script/EventLog.h"

#include <QJsonDocument>

#include <ostream>

using namespace simulator;

void EventLog::write(const QString& event, const QJsonObject& fields)
{
    // Qt sorts the keys of an object; the event is to be the first.
    const QByteArray rest = QJsonDocument(fields).toJson(QJsonDocument::Compact).sliced(1);
    m_out << "{\"event\":\"" << event.toStdString() << (fields.isEmpty() ? "\"" : "\",")
          << rest.toStdString() << std::endl;
}

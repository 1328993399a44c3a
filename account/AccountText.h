#pragma once

#include <QString>
#include <QStringView>

/// Limits of the texts that the account service sends. They end up on pages, in the log and in the
/// store. Any thread.
namespace AccountText
{

/// A text of the service without control characters, which become blanks, and cut to a length that
/// pages and log can take.
[[nodiscard]] QString message(const QString& text);

/// The same for the member of a reply, or the stored value, with this name. A token may be longer
/// than the others, and a picture is left as it is.
[[nodiscard]] QString value(QStringView name, const QString& text);

} // namespace AccountText

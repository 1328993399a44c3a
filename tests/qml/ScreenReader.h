#pragma once

#include <QObject>

/// Acts on Qt as a screen reader of the system does, which switches accessibility on. Needs the
/// application object. `owner` keeps what serves Qt's questions.
void actAsScreenReader(QObject* owner);

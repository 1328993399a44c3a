#pragma once

#include <QStringList>

class QQuickItem;

/// What is wrong with the place of each visible text below `root`, one line a fault: it is elided,
/// it leaves a frame that it stands in, or it lies on another text, a picture or a control. The
/// colours and shapes of what it lies on do not matter; what a popup covers does not count.
QStringList misplacedTexts(const QQuickItem* root);

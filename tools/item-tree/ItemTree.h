#pragma once

class QQuickItem;
class QTextStream;

/// Prints an item and its descendants, one line each: type, position in the window, size, and
/// colour, border, font, text and picture where it has them. Hidden items are marked.
void printItemTree(const QQuickItem* item, QTextStream& out);

#pragma once

class QQuickItem;
class QTextStream;

/// Prints an item and all below it, one line each: type, position in the window, size, and what
/// else there is of colour, border, font, text, picture. What cannot be seen is marked.
void printItemTree(const QQuickItem* item, QTextStream& out);
